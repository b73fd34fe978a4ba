// The Create New Objects dialog driven like a designer: what each control
// shows for the record's preset and enabled bits, the validation order and
// messages, and the remembered choices kept in the settings file.
#include <cstring>
#include <deque>
#include <string>
#include <vector>

#include "editor/editor.h"
#include "placement/create_objects.h"
#include "resources/placement_ids.h"
#include "host/driver_steps.h"
#include "tests/support/editor_test.h"

namespace {
const char *const title = "Create New Objects";
const uint32_t all_fields = 0x1FF;
using lines = std::vector<std::string>;

// What the designer sees: the type, the reference, the three edits, then the
// alignment radios and box, the orientation radios and box.
std::string screen(HWND dlg) {
    return shown(dlg, {IDC_CO_TYPE, IDC_CO_REF_OBJ, IDC_CO_NUMBER, IDC_CO_OBJ_DIST, IDC_CO_CAM_DIST, IDC_CO_AALIGN_X,
                       IDC_CO_AALIGN_Y, IDC_CO_AALIGN_Z, IDC_CO_AACAMREL, IDC_CO_ORIENT_X, IDC_CO_ORIENT_Y,
                       IDC_CO_ORIENT_Z, IDC_CO_OCAMREL});
}

class create_objects_test : public editor_test {
protected:
    create_objects_record record{};
    std::deque<std::string> boxes;  // the error boxes' texts, in order

    void SetUp() override {
        editor_test::SetUp();
        host.reference_names[0] = {"Crossroads", "Bridge1", "Church"};
        host.reference_names[2] = {"Tank2", "Tank1"};
        host.reference_names[7] = {"Helipad"};
        record.ocamrel = 0x5A5A5A5A;  // a marker that shows whether the record was written
    }
    bool unchanged(const create_objects_record &before) { return !std::memcmp(&before, &record, sizeof record); }
    // Runs the dialog with the steps of `d` (`act` alone if given); its answer.
    int open(ui_driver &d, const ui_driver::action &act = nullptr) {
        if (act) d.then(title, act);
        const int result = editor_window(REQUEST_CREATE_OBJECTS, reinterpret_cast<uintptr_t>(&record), 0);
        EXPECT_DRIVER_OK(d);
        return result;
    }
    int open(const ui_driver::action &act) {
        ui_driver d;
        return open(d, act);
    }
    // An error box, its text noted.
    void box(ui_driver &d) { d.answer_box("Editor Error", IDOK, &boxes.emplace_back()); }
    // A step that lets `act` work on the dialog, then presses OK, which is refused.
    void refused_ok(ui_driver &d, const ui_driver::action &act) {
        d.then(title, [act](HWND dlg) { act(dlg); ui_command(dlg, IDOK); });
        box(d);
    }
};
}  // namespace

TEST_F(create_objects_test, what_the_preset_and_enabled_bits_show) {
    ASSERT_EQ(start_editor(), 1);
    // A preset number above 10 is refused before any dialog opens.
    record = {CO_NUMBER, all_fields, 0, "", 11, 0, 0, 0, 0, 0, 0};
    create_objects_record before = record;
    ui_driver d;
    box(d);
    EXPECT_EQ(open(d), 0);
    EXPECT_EQ(boxes, (std::deque<std::string>{"Invalid selection for number of objects!"}));
    EXPECT_TRUE(unchanged(before));

    // Nothing offered: every control greyed and empty; OK keeps the record.
    record = {0, 0, 0, "", 0, 0, 0, 0, 0, 0, 0x5A5A5A5A};
    std::memset(record.ref_obj, 'q', sizeof record.ref_obj);  // not even terminated
    before = record;
    EXPECT_EQ(open([](HWND dlg) {
        EXPECT_EQ(screen(dlg), "[],[],[],[],[],[o],[o],[o],[o],[o],[o],[o],[o]");
        EXPECT_TRUE(ui_combo_items(dlg, IDC_CO_TYPE).empty() && ui_combo_items(dlg, IDC_CO_REF_OBJ).empty());
        ui_set_text(dlg, IDC_CO_NUMBER, "3");  // switches the distance only when the designer may set it
        EXPECT_FALSE(ui_enabled(dlg, IDC_CO_OBJ_DIST));
        ui_command(dlg, IDOK);
    }), 1);
    EXPECT_TRUE(unchanged(before));

    // The type text is not cut to 31 characters; the name matches whatever its case.
    record = {all_fields, all_fields, OBJECT_GRALLS, "tank2", 4, 12.5f, 7.25f, 1, 0, 2, 0};
    EXPECT_EQ(open([](HWND dlg) {
        EXPECT_EQ(screen(dlg), "Gralls (Ground Units with weapons),Tank2,4,12.500,7.250,x,o,o,o,o,x,o,o");
        ui_command(dlg, IDCANCEL);
    }), 0);
    EXPECT_STREQ(create_objects_remembered().ref_obj, "tank2");  // cancelled, yet taken up on opening

    // A preset alone does not show box 1025; a number not the designer's to
    // change does not grey the distance.
    record = {CO_AACAMREL | CO_OCAMREL | CO_NUMBER | CO_TYPE, CO_OBJ_DIST, OBJECT_MAN, "", 1, 0, 0, 0, 1, 0, 1};
    EXPECT_EQ(open([&](HWND dlg) {
        EXPECT_EQ(screen(dlg), "[Man],[],[1],50.000,[],[o],[o],[o],[x],[o],[o],[o],[o]");
        ui_set_text(dlg, IDC_CO_OBJ_DIST, "8");
        ui_command(dlg, IDOK);
    }), 1);
    EXPECT_TRUE(record.obj_dist == 8.0f && record.type == OBJECT_MAN);  // the type, not enabled, kept
}

// One session: validation runs in order, type first; each field's bad texts
// are refused with its message while the others are good; steps that passed
// are remembered although a later one failed; only the last, good OK writes.
TEST_F(create_objects_test, validation_runs_in_order_refuses_bad_texts_and_remembers_passed_steps) {
    host.write_setting("Query", "Type", "99");  // selects no type
    ASSERT_EQ(start_editor(), 1);
    record.enabled = all_fields;
    const std::string long_name(300, 'B');
    host.reference_names[2].push_back(long_name);  // longer than any record field
    const create_objects_record before = record;
    const char *const bad_type = "Invalid type of objects!", *bad_ref = "Invalid reference object selection!",
                      *bad_number = "Invalid selection for number of objects!",
                      *bad_spacing = "Invalid distance between objects!", *bad_camera = "Invalid distance from camera!";
    lines expected{bad_type, bad_type, bad_ref, bad_number, bad_spacing, bad_camera};
    ui_driver d;
    box(d);  // the reference list has no type to ask for
    refused_ok(d, [](HWND dlg) {
        EXPECT_EQ(screen(dlg), ",,1,[50.000],100.000,o,o,x,x,o,o,x,x");
        // One object needs no spacing: the number switches the distance on and off.
        for (auto n : {std::make_pair("3", true), {"1", false}, {"10", true}, {"", false}, {"2", true}, {"11", false}}) {
            ui_set_text(dlg, IDC_CO_NUMBER, n.first);
            EXPECT_EQ(ui_enabled(dlg, IDC_CO_OBJ_DIST), n.second) << n.first;
        }
    });
    d.then(title, [](HWND dlg) { ui_combo_select(dlg, IDC_CO_TYPE, "Gralls (Ground Units with weapons)"); });
    refused_ok(d, [](HWND dlg) { ui_set_text(dlg, IDC_CO_REF_OBJ, ""); });
    refused_ok(d, [](HWND dlg) { ui_set_text(dlg, IDC_CO_REF_OBJ, "TANK1"); });
    refused_ok(d, [](HWND dlg) { ui_set_text(dlg, IDC_CO_NUMBER, "4"); ui_set_text(dlg, IDC_CO_OBJ_DIST, "2.5m"); });
    refused_ok(d, [](HWND dlg) {
        ui_set_text(dlg, IDC_CO_OBJ_DIST, "2.5");
        ui_set_text(dlg, IDC_CO_CAM_DIST, "-1");
        ui_click(dlg, IDC_CO_AACAMREL);  // never reached
    });
    d.then(title, [](HWND) {
        // The case-insensitive match keeps the typed text.
        const create_objects_memory &m = create_objects_remembered();
        EXPECT_STREQ(m.ref_obj, "TANK1");
        EXPECT_TRUE(m.type == 2 && m.number == 4 && m.obj_dist == 2.5f && m.cam_dist == 100.0f && m.aacamrel == 1);
    });
    const std::vector<const char *> bad_distances = {"2.5m", "0", "-1", "", "2.5 "};
    const struct {
        int id;
        const char *good;
        std::vector<const char *> bad;
        const char *message;
    } fields[] = {
        // A typed name is cut to 63 before the match, so the long one matches nothing; nor does a prefix.
        {IDC_CO_REF_OBJ, "Tank1", {long_name.c_str(), "Tank", ""}, bad_ref},
        {IDC_CO_NUMBER, "2", {"0", "11", "", "x"}, bad_number},
        {IDC_CO_OBJ_DIST, "2", bad_distances, bad_spacing},
        {IDC_CO_CAM_DIST, "2", bad_distances, bad_camera}};
    for (const auto &field : fields) {
        for (const char *bad : field.bad) {
            expected.push_back(field.message);
            refused_ok(d, [&, bad](HWND dlg) {
                for (const auto &f : fields) ui_set_text(dlg, f.id, f.id == field.id ? bad : f.good);
            });
        }
    }
    // Long texts in the edits are judged whole, without overflow.
    d.then(title, [&](HWND dlg) {
        EXPECT_TRUE(unchanged(before));
        ui_set_text(dlg, IDC_CO_REF_OBJ, "tAnK2");
        ui_set_text(dlg, IDC_CO_NUMBER, "3" + std::string(299, 'x'));  // "%u" takes the leading number
        ui_set_text(dlg, IDC_CO_OBJ_DIST, std::string(296, '0') + "2.5");
        ui_set_text(dlg, IDC_CO_CAM_DIST, " 1e3");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(open(d), 1);
    EXPECT_EQ(lines(boxes.begin(), boxes.end()), expected);
    EXPECT_STREQ(record.ref_obj, "tAnK2");
    EXPECT_TRUE(record.type == OBJECT_GRALLS && record.number == 3 && record.obj_dist == 2.5f && record.cam_dist == 1000);
}

TEST_F(create_objects_test, choices_survive_tidy_up_and_restart_through_the_settings_file) {
    ASSERT_EQ(start_editor(), 1);
    record.enabled = all_fields;
    ui_driver d;
    d.then(title, [](HWND dlg) {
        EXPECT_EQ(ui_combo_items(dlg, IDC_CO_TYPE),
                  (lines{"Bombing Run", "Cultural", "Gralls (Ground Units with weapons)", "Group Waypoint Object",
                         "Grunit", "Helicopter", "Man", "Rally Point", "World (General)"}));
        EXPECT_EQ(ui_combo_items(dlg, IDC_CO_REF_OBJ), (lines{"Bridge1", "Church", "Crossroads"}));
        // The defaults; nothing remembered for the reference: its first item.
        EXPECT_EQ(screen(dlg), "World (General),Bridge1,1,[50.000],100.000,o,o,x,x,o,o,x,x");
        ui_combo_select(dlg, IDC_CO_TYPE, "Grunit");
    });
    d.then(title, [](HWND dlg) {
        for (auto text : {std::make_pair(IDC_CO_NUMBER, "3"), {IDC_CO_OBJ_DIST, "12.5"}, {IDC_CO_CAM_DIST, "250"}})
            ui_set_text(dlg, text.first, text.second);
        for (int id : {IDC_CO_AALIGN_Y, IDC_CO_AACAMREL, IDC_CO_ORIENT_X}) ui_click(dlg, id);
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(open(d), 1);
    EXPECT_TRUE(unchanged({0, all_fields, OBJECT_GRUNIT, "Helipad", 3, 12.5f, 250.0f, 2, 0, 1, 1}));
    ASSERT_EQ(editor_tidyup(), 1);
    char section[1024] = {};  // the keys as the file holds them, in the order written
    DWORD length = GetPrivateProfileSectionA("Query", section, sizeof section, host.settings_path().c_str());
    lines written;
    for (const char *line = section; line < section + length && *line; line += std::strlen(line) + 1)
        written.push_back(line);
    EXPECT_EQ(written, (lines{"Type=7", "RefObj=Helipad", "Number=3", "ObjDist=12.500000", "CamDist=250.000000",
                              "AAlign=2", "AACamRel=0", "Orient=1", "OCamrel=1"}));
    // A new run starts from the file; the remembered type 7 selects Grunit.
    ASSERT_EQ(start_editor(), 1);
    EXPECT_EQ(open([](HWND dlg) {
        EXPECT_EQ(screen(dlg), "Grunit,Helipad,3,12.500,250.000,o,x,o,o,x,o,o,x");
        ui_command(dlg, IDCANCEL);
    }), 0);
    ASSERT_EQ(editor_tidyup(), 1);

    // Hand-edited settings select nothing and break nothing.
    const std::string long_name(200, 'n');
    const char *const keys[][2] = {{"Type", "12"},       {"RefObj", long_name.c_str()}, {"Number", "7 apples"},
                                   {"ObjDist", "far"},   {"CamDist", ""},               {"AAlign", "9"},
                                   {"AACamRel", "yes"}, {"Orient", "-2"},              {"OCamrel", "0"}};
    for (const auto &key : keys) host.write_setting("Query", key[0], key[1]);
    ASSERT_EQ(start_editor(), 1);
    EXPECT_EQ(std::strlen(create_objects_remembered().ref_obj), 63u);
    record.enabled = all_fields & ~CO_REF_OBJ;
    ui_driver again;
    // No type or axis selected; unparsable values keep their defaults.
    refused_ok(again, [](HWND dlg) { EXPECT_EQ(screen(dlg), ",[],7,50.000,100.000,o,o,o,x,o,o,o,o"); });
    again.then(title, [](HWND dlg) { ui_combo_select(dlg, IDC_CO_TYPE, "Man"); ui_command(dlg, IDOK); });
    EXPECT_EQ(open(again), 1);
    EXPECT_EQ(boxes, (std::deque<std::string>{"Invalid type of objects!"}));
    EXPECT_TRUE(record.type == OBJECT_MAN && record.aalign == 3 && record.orient == 3);  // nothing checked reads as Z
}

// Each failure to fill the reference box shows its message when the dialog
// opens and again when the type is chosen, and leaves the box empty, so OK
// is refused.
TEST_F(create_objects_test, no_reference_list_for_the_type_refuses_ok) {
    ASSERT_EQ(start_editor(), 1);
    const char *const none = "No reference object available!";
    const struct {
        uint32_t enabled;
        int32_t type;
        const char *message;
    } scenarios[] = {{CO_REF_OBJ, OBJECT_WORLD, "Invalid type of objects!"},  // no type offered
                     {CO_TYPE | CO_REF_OBJ, OBJECT_RALLY_POINT, none}};       // nothing for the type
    for (const auto &c : scenarios) {
        SCOPED_TRACE(c.type);
        record = {c.enabled & CO_TYPE, c.enabled, c.type, "", 0, 0, 0, 0, 0, 0, 0};
        boxes.clear();
        ui_driver d;
        box(d);
        refused_ok(d, [](HWND dlg) {
            EXPECT_TRUE(ui_combo_items(dlg, IDC_CO_REF_OBJ).empty());
            ui_set_text(dlg, IDC_CO_REF_OBJ, "Church");
        });
        if (c.enabled & CO_TYPE) {
            d.then(title, [](HWND dlg) {
                ui_combo_select_index(dlg, IDC_CO_TYPE, int(SendDlgItemMessageA(dlg, IDC_CO_TYPE, CB_GETCURSEL, 0, 0)));
            });
            box(d);
        }
        d.then(title, [](HWND dlg) {
            EXPECT_TRUE(ui_combo_items(dlg, IDC_CO_REF_OBJ).empty());
            PostMessageA(dlg, WM_CLOSE, 0, 0);  // the close box
        });
        EXPECT_EQ(open(d), 0);
        lines expected{c.message, "Invalid reference object selection!"};
        if (c.enabled & CO_TYPE) expected.push_back(c.message);
        EXPECT_EQ(lines(boxes.begin(), boxes.end()), expected);
    }
}
