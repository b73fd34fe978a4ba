// Create New Objects (template 122, request 4): the type, reference object,
// count, spacing and alignment of new objects, with the designer's last
// choices remembered between runs.
#include "placement/create_objects.h"

#include <cstdio>
#include <cstring>
#include <string>

#include "editor/editor.h"
#include "resources/placement_ids.h"
#include "resources/string_ids.h"
#include "util/controls.h"
#include "util/dialogs.h"
#include "util/dlist.h"
#include "util/line_batch.h"
#include "util/modal.h"
#include "util/numbers.h"
#include "util/settings.h"
#include "util/text.h"

namespace {
// The string-table text of each object type, by type index.
const int type_string_ids[OBJECT_TYPE_COUNT] = {
    IDS_TYPE_WORLD,        IDS_TYPE_CULTURAL,    IDS_TYPE_GRALLS,     IDS_TYPE_GROUP_WAYPOINT, IDS_TYPE_BOMBING_RUN,
    IDS_TYPE_RALLY_POINT, IDS_TYPE_HELICOPTER, IDS_TYPE_GRUNIT, IDS_TYPE_MAN};

const create_objects_memory default_memory = {0, "", 1, 50.0f, 100.0f, 3, 1, 3, 1};

module_flag module;
create_objects_memory memory = default_memory;
// The record being edited; copied back over the host's record only on OK.
create_objects_record working;

// Whole-text read of a control: the designer may type far more than any field
// holds, and the numeric rules must judge all of it, not a cut prefix.
std::string control_text(HWND dialog, int id) {
    HWND control = GetDlgItem(dialog, id);
    if (!control) return std::string();
    int length = GetWindowTextLengthA(control);
    if (length <= 0) return std::string();
    std::string text(static_cast<size_t>(length) + 1, '\0');
    int got = GetWindowTextA(control, &text[0], length + 1);
    text.resize(got > 0 ? static_cast<size_t>(got) : 0);
    return text;
}

bool offered(uint32_t bit) { return ((working.enabled | working.preset) & bit) != 0; }
bool editable(uint32_t bit) { return (working.enabled & bit) != 0; }
bool preset(uint32_t bit) { return (working.preset & bit) != 0; }

// "%u" parse of a whole number; false unless exactly one number was read.
bool parse_unsigned(const std::string &text, uint32_t &value) {
    unsigned parsed = 0;
    if (std::sscanf(text.c_str(), "%u", &parsed) != 1) return false;
    value = parsed;
    return true;
}

// A distance is a number with nothing after it, greater than 0.
bool parse_distance(const std::string &text, float &value) {
    size_t used = scan_decimal(text.c_str(), value);
    return used > 0 && text[used] == '\0' && value > 0.0f;
}

void select_reference(HWND combo, const char *name) {
    LRESULT found = SendMessageA(combo, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(name));
    SendMessageA(combo, CB_SETCURSEL, found == CB_ERR ? 0 : static_cast<WPARAM>(found), 0);
}

void check_axis(HWND dialog, int32_t axis, const int (&buttons)[3]) {
    // An axis outside 1 to 3 (a hand-edited settings file) checks nothing.
    if (axis >= CO_AXIS_X && axis <= CO_AXIS_Z) CheckDlgButton(dialog, buttons[axis - 1], BST_CHECKED);
}

int32_t checked_axis(HWND dialog, const int (&buttons)[3]) {
    if (IsDlgButtonChecked(dialog, buttons[0]) == BST_CHECKED) return CO_AXIS_X;
    if (IsDlgButtonChecked(dialog, buttons[1]) == BST_CHECKED) return CO_AXIS_Y;
    return CO_AXIS_Z;
}

const int aalign_buttons[3] = {IDC_CO_AALIGN_X, IDC_CO_AALIGN_Y, IDC_CO_AALIGN_Z};
const int orient_buttons[3] = {IDC_CO_ORIENT_X, IDC_CO_ORIENT_Y, IDC_CO_ORIENT_Z};

void on_init(HWND dialog) {
    HWND type_combo = GetDlgItem(dialog, IDC_CO_TYPE);
    HWND ref_combo = GetDlgItem(dialog, IDC_CO_REF_OBJ);

    if (offered(CO_TYPE)) {
        int32_t type = preset(CO_TYPE) ? working.type : static_cast<int32_t>(memory.type);
        for (int index = 0; index < OBJECT_TYPE_COUNT; ++index) {
            char text[256];
            load_string(type_string_ids[index], text, sizeof text);
            LRESULT item = SendMessageA(type_combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
            if (item == CB_ERR || item == CB_ERRSPACE) continue;
            SendMessageA(type_combo, CB_SETITEMDATA, static_cast<WPARAM>(item), index);
        }
        // Selected once all are in: sorted insertion moves items about. A type
        // outside 0 to 8 (a hand-edited settings file) selects nothing.
        LRESULT count = SendMessageA(type_combo, CB_GETCOUNT, 0, 0);
        for (LRESULT item = 0; item < count; ++item) {
            if (SendMessageA(type_combo, CB_GETITEMDATA, static_cast<WPARAM>(item), 0) == type)
                SendMessageA(type_combo, CB_SETCURSEL, static_cast<WPARAM>(item), 0);
        }
    }
    enable_control(dialog, IDC_CO_TYPE, editable(CO_TYPE));

    if (offered(CO_REF_OBJ)) {
        fill_reference_list(dialog, ref_combo);
        // The host's name becomes the remembered one as soon as it is shown.
        if (preset(CO_REF_OBJ)) copy_field(memory.ref_obj, working.ref_obj);
        select_reference(ref_combo, memory.ref_obj);
    }
    enable_control(dialog, IDC_CO_REF_OBJ, editable(CO_REF_OBJ));

    uint32_t number = preset(CO_NUMBER) ? working.number : memory.number;
    if (offered(CO_NUMBER)) set_item_text_f(dialog, IDC_CO_NUMBER, "%u", number);
    enable_control(dialog, IDC_CO_NUMBER, editable(CO_NUMBER));

    if (offered(CO_OBJ_DIST))
        set_item_text_f(dialog, IDC_CO_OBJ_DIST, "%.3f", preset(CO_OBJ_DIST) ? working.obj_dist : memory.obj_dist);
    // Set after the number, whose text change may already have switched it.
    enable_control(dialog, IDC_CO_OBJ_DIST, editable(CO_OBJ_DIST) && (!editable(CO_NUMBER) || number > 1));

    if (offered(CO_CAM_DIST))
        set_item_text_f(dialog, IDC_CO_CAM_DIST, "%.3f", preset(CO_CAM_DIST) ? working.cam_dist : memory.cam_dist);
    enable_control(dialog, IDC_CO_CAM_DIST, editable(CO_CAM_DIST));

    if (offered(CO_AALIGN))
        check_axis(dialog, preset(CO_AALIGN) ? working.aalign : static_cast<int32_t>(memory.aalign), aalign_buttons);
    for (int id : aalign_buttons) enable_control(dialog, id, editable(CO_AALIGN));

    if (offered(CO_AACAMREL)) {
        int32_t on = preset(CO_AACAMREL) ? working.aacamrel : static_cast<int32_t>(memory.aacamrel);
        CheckDlgButton(dialog, IDC_CO_AACAMREL, on ? BST_CHECKED : BST_UNCHECKED);
    }
    enable_control(dialog, IDC_CO_AACAMREL, editable(CO_AACAMREL));

    if (offered(CO_ORIENT))
        check_axis(dialog, preset(CO_ORIENT) ? working.orient : static_cast<int32_t>(memory.orient), orient_buttons);
    for (int id : orient_buttons) enable_control(dialog, id, editable(CO_ORIENT));

    // Unlike the other fields, a preset alone does not show this one.
    if (editable(CO_OCAMREL)) {
        int32_t on = preset(CO_OCAMREL) ? working.ocamrel : static_cast<int32_t>(memory.ocamrel);
        CheckDlgButton(dialog, IDC_CO_OCAMREL, on ? BST_CHECKED : BST_UNCHECKED);
    }
    enable_control(dialog, IDC_CO_OCAMREL, editable(CO_OCAMREL));

    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOW);
    SetFocus(type_combo);
}

// The distance between objects only matters for more than one object.
void number_changed(HWND dialog) {
    uint32_t number = 0;
    bool wanted = parse_unsigned(control_text(dialog, IDC_CO_NUMBER), number) && number >= 2 && number <= 10;
    HWND distance = GetDlgItem(dialog, IDC_CO_OBJ_DIST);
    if ((IsWindowEnabled(distance) != FALSE) != wanted) EnableWindow(distance, wanted ? TRUE : FALSE);
}

// The validation steps of OK, in order. Each failure answers its message's
// string id; each passed step has already updated the working copy and the
// remembered value. 0 when everything passed.
int first_failure(HWND dialog) {
    if (editable(CO_TYPE)) {
        HWND combo = GetDlgItem(dialog, IDC_CO_TYPE);
        LRESULT item = SendMessageA(combo, CB_GETCURSEL, 0, 0);
        LRESULT data = item == CB_ERR ? CB_ERR : SendMessageA(combo, CB_GETITEMDATA, static_cast<WPARAM>(item), 0);
        working.type = static_cast<int32_t>(data);
        if (working.type < 0 || working.type >= OBJECT_TYPE_COUNT) return IDS_INVALID_TYPE;
        memory.type = static_cast<uint32_t>(working.type);
    }
    if (editable(CO_REF_OBJ)) {
        HWND combo = GetDlgItem(dialog, IDC_CO_REF_OBJ);
        get_item_text(dialog, IDC_CO_REF_OBJ, working.ref_obj);
        if (!working.ref_obj[0] ||
            SendMessageA(combo, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                         reinterpret_cast<LPARAM>(working.ref_obj)) == CB_ERR)
            return IDS_INVALID_REFERENCE;
        copy_field(memory.ref_obj, working.ref_obj);
    }
    if (editable(CO_NUMBER)) {
        if (!parse_unsigned(control_text(dialog, IDC_CO_NUMBER), working.number) || working.number == 0 ||
            working.number > 10)
            return IDS_INVALID_NUMBER;
        memory.number = working.number;
    }
    if (editable(CO_OBJ_DIST)) {
        if (!parse_distance(control_text(dialog, IDC_CO_OBJ_DIST), working.obj_dist)) return IDS_INVALID_OBJECT_DISTANCE;
        memory.obj_dist = working.obj_dist;
    }
    if (editable(CO_CAM_DIST)) {
        if (!parse_distance(control_text(dialog, IDC_CO_CAM_DIST), working.cam_dist)) return IDS_INVALID_CAMERA_DISTANCE;
        memory.cam_dist = working.cam_dist;
    }
    if (editable(CO_AALIGN)) {
        working.aalign = checked_axis(dialog, aalign_buttons);
        memory.aalign = static_cast<uint32_t>(working.aalign);
    }
    if (editable(CO_AACAMREL)) {
        working.aacamrel = IsDlgButtonChecked(dialog, IDC_CO_AACAMREL) == BST_CHECKED ? 1 : 0;
        memory.aacamrel = static_cast<uint32_t>(working.aacamrel);
    }
    if (editable(CO_ORIENT)) {
        working.orient = checked_axis(dialog, orient_buttons);
        memory.orient = static_cast<uint32_t>(working.orient);
    }
    if (editable(CO_OCAMREL)) {
        working.ocamrel = IsDlgButtonChecked(dialog, IDC_CO_OCAMREL) == BST_CHECKED ? 1 : 0;
        memory.ocamrel = static_cast<uint32_t>(working.ocamrel);
    }
    return 0;
}

// A refused value is reported and the dialog, made active again, stays open.
dialog_end on_ok(HWND dialog) {
    int failure = first_failure(dialog);
    if (!failure) return END_CONFIRMED;
    show_message_id(failure, MESSAGE_ERROR);
    SetActiveWindow(dialog);
    return KEEP_OPEN;
}

bool on_command(HWND dialog, int id, int code) {
    if (id == IDC_CO_TYPE && code == CBN_SELCHANGE) {
        if (editable(CO_TYPE) && offered(CO_REF_OBJ)) {
            HWND combo = GetDlgItem(dialog, IDC_CO_REF_OBJ);
            if (fill_reference_list(dialog, combo)) select_reference(combo, memory.ref_obj);
        }
        return true;
    }
    if (id == IDC_CO_NUMBER && code == EN_CHANGE) {
        if (editable(CO_OBJ_DIST)) number_changed(dialog);
        return true;
    }
    return false;
}

// WM_INITDIALOG answers FALSE: on_init has put the focus on the type box.
const dialog_class create_objects_class = {on_init, on_command, on_ok, nullptr, FALSE};

void read_unsigned(const char *file, const char *folder, int key, uint32_t &value) {
    char text[64];
    if (settings_read(file, folder, SETTINGS_QUERY, key, text, sizeof text)) parse_unsigned(text, value);
}

void read_float(const char *file, const char *folder, int key, float &value) {
    char text[64];
    if (settings_read(file, folder, SETTINGS_QUERY, key, text, sizeof text)) scan_decimal(text, value);
}

void write_int(const char *file, const char *folder, int key, uint32_t value) {
    char text[64];
    std::snprintf(text, sizeof text, "%d", static_cast<int>(value));
    settings_write(file, folder, SETTINGS_QUERY, key, text);
}

void write_float(const char *file, const char *folder, int key, float value) {
    char text[64];
    std::snprintf(text, sizeof text, "%f", static_cast<double>(value));
    settings_write(file, folder, SETTINGS_QUERY, key, text);
}
}  // namespace

const create_objects_memory &create_objects_remembered() { return memory; }

int create_objects_start(const char *settings_file, const char *settings_folder) {
    if (module.started) return 0;
    // Every run starts from the defaults, so nothing of an earlier run leaks in
    // except through the settings file.
    memory = default_memory;
    read_unsigned(settings_file, settings_folder, QUERY_TYPE, memory.type);
    char name[64];
    if (settings_read(settings_file, settings_folder, SETTINGS_QUERY, QUERY_REF_OBJ, name, sizeof name))
        copy_field(memory.ref_obj, name);
    read_unsigned(settings_file, settings_folder, QUERY_NUMBER, memory.number);
    read_float(settings_file, settings_folder, QUERY_OBJ_DIST, memory.obj_dist);
    read_float(settings_file, settings_folder, QUERY_CAM_DIST, memory.cam_dist);
    read_unsigned(settings_file, settings_folder, QUERY_AALIGN, memory.aalign);
    read_unsigned(settings_file, settings_folder, QUERY_AACAMREL, memory.aacamrel);
    read_unsigned(settings_file, settings_folder, QUERY_ORIENT, memory.orient);
    read_unsigned(settings_file, settings_folder, QUERY_OCAMREL, memory.ocamrel);
    return module.start();
}

int create_objects_tidyup(const char *settings_file, const char *settings_folder) {
    if (!module.started) return 0;
    write_int(settings_file, settings_folder, QUERY_TYPE, memory.type);
    settings_write(settings_file, settings_folder, SETTINGS_QUERY, QUERY_REF_OBJ, memory.ref_obj);
    write_int(settings_file, settings_folder, QUERY_NUMBER, memory.number);
    write_float(settings_file, settings_folder, QUERY_OBJ_DIST, memory.obj_dist);
    write_float(settings_file, settings_folder, QUERY_CAM_DIST, memory.cam_dist);
    write_int(settings_file, settings_folder, QUERY_AALIGN, memory.aalign);
    write_int(settings_file, settings_folder, QUERY_AACAMREL, memory.aacamrel);
    write_int(settings_file, settings_folder, QUERY_ORIENT, memory.orient);
    write_int(settings_file, settings_folder, QUERY_OCAMREL, memory.ocamrel);
    return module.tidyup();
}

int fill_reference_list(HWND dialog, HWND combo) {
    SendMessageA(combo, CB_RESETCONTENT, 0, 0);
    int message = IDS_INVALID_TYPE;
    int added = 0;
    HWND type_combo = GetDlgItem(dialog, IDC_CO_TYPE);
    LRESULT item = SendMessageA(type_combo, CB_GETCURSEL, 0, 0);
    LRESULT type = item == CB_ERR ? CB_ERR : SendMessageA(type_combo, CB_GETITEMDATA, static_cast<WPARAM>(item), 0);
    if (type >= 0 && type < OBJECT_TYPE_COUNT) {
        message = IDS_NO_REFERENCE;
        dlist *list = nullptr;
        host_typed_list_fn reference_list = host().host_reference_list;
        if (reference_list && reference_list(static_cast<int>(type), &list, HOST_LIST_ACQUIRE)) {
            line_batch names(combo);
            for (const char *name : dlist_values<const char>(list))
                if (name) names.add(name);
            for (LRESULT index : names.commit()) added += index >= 0;
            if (reference_list(static_cast<int>(type), &list, HOST_LIST_RELEASE) && added > 0) return 1;
        }
    }
    SendMessageA(combo, CB_RESETCONTENT, 0, 0);
    show_message_id(message, MESSAGE_ERROR);
    return 0;
}

int create_objects_dialog(create_objects_record *record) {
    modal_session session(module);
    if (!session || !record) return 0;
    if ((record->preset & CO_NUMBER) && record->number > 10) {
        show_message_id(IDS_INVALID_NUMBER, MESSAGE_ERROR);
        return 0;
    }
    std::memcpy(&working, record, sizeof working);
    if (!session.run(IDD_CREATE_OBJECTS, editor_main_window(), dialog_proc<create_objects_class>)) return 0;
    std::memcpy(record, &working, sizeof working);
    return 1;
}
