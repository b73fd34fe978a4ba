// The Create New Objects dialog driven like a designer: what each control
// shows for the record's preset and enabled bits, the validation order and
// messages, and the remembered choices kept in the settings file.
#include <cstring>
#include <deque>
#include <string>
#include <vector>

#include "editor/editor.h"
#include "placement/create_objects.h"
#include "util/dialogs.h"
#include "resources/placement_ids.h"
#include "tests/support/shown.h"
#include "tests/support/test_host.h"

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

    void SetUp() override {
        editor_test::SetUp();
        host.reference_names[0] = {"Crossroads", "Bridge1", "Church"};
        host.reference_names[2] = {"Tank2", "Tank1"};
        host.reference_names[7] = {"Helipad"};
        record.ocamrel = 0x5A5A5A5A;  // a marker that shows whether the record was written
    }
    int open() { return editor_window(REQUEST_CREATE_OBJECTS, reinterpret_cast<uintptr_t>(&record), 0); }
    bool unchanged(const create_objects_record &before) { return !std::memcmp(&before, &record, sizeof record); }

    // A step that lets `act` work on the dialog, presses OK and answers the error box that follows.
    static void refused_ok(ui_driver &d, std::string *text, const ui_driver::action &act) {
        d.then(title, [act](HWND dlg) { act(dlg); ui_command(dlg, IDOK); }).answer_box("Editor Error", IDOK, text);
    }
    // Opens the dialog, runs `act` on it and expects the dialog to answer `expected`.
    void run(int expected, const ui_driver::action &act) {
        ui_driver d;
        d.then(title, act);
        EXPECT_EQ(open(), expected);
        EXPECT_DRIVER_OK(d);
    }
};

TEST_F(create_objects_test, what_the_preset_and_enabled_bits_show) {
    ASSERT_EQ(start_editor(), 1);
    // A preset number above 10 is refused before any dialog opens.
    record = {CO_NUMBER, all_fields, 0, "", 11, 0, 0, 0, 0, 0, 0};
    create_objects_record before = record;
    std::string text;
    ui_driver d;
    d.answer_box("Editor Error", IDOK, &text);
    EXPECT_EQ(open(), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(text, "Invalid selection for number of objects!");
    EXPECT_TRUE(unchanged(before));

    // Nothing offered: every control greyed and empty; OK keeps the record.
    record = {0, 0, 0, "", 0, 0, 0, 0, 0, 0, 0x5A5A5A5A};
    std::memset(record.ref_obj, 'q', sizeof record.ref_obj);  // not even terminated
    before = record;
    run(1, [](HWND dlg) {
        EXPECT_EQ(screen(dlg), "[],[],[],[],[],[o],[o],[o],[o],[o],[o],[o],[o]");
        EXPECT_TRUE(ui_combo_items(dlg, IDC_CO_TYPE).empty() && ui_combo_items(dlg, IDC_CO_REF_OBJ).empty());
        ui_set_text(dlg, IDC_CO_NUMBER, "3");  // switches the distance only when the designer may set it
        EXPECT_FALSE(ui_enabled(dlg, IDC_CO_OBJ_DIST));
        ui_command(dlg, IDOK);
    });
    EXPECT_TRUE(unchanged(before));

    record = {all_fields, all_fields, OBJECT_GRALLS, "tank2", 4, 12.5f, 7.25f, 1, 0, 2, 0};
    run(0, [](HWND dlg) {
        // The type text is not cut to 31 characters; the name matches whatever its case.
        EXPECT_EQ(screen(dlg), "Gralls (Ground Units with weapons),Tank2,4,12.500,7.250,x,o,o,o,o,x,o,o");
        ui_command(dlg, IDCANCEL);
    });
    // Cancelled, yet the host's name was taken up when the dialog opened.
    EXPECT_STREQ(create_objects_remembered().ref_obj, "tank2");

    // A host request from inside the dialog is refused: a second dialog would
    // overwrite the working copy that the first one writes back.
    create_objects_record inner{0, 0, 5, "inner", 7, 0, 0, 0, 0, 0, 0};
    int nested = -1;
    record = {CO_AACAMREL | CO_OCAMREL | CO_NUMBER | CO_TYPE, CO_OBJ_DIST, OBJECT_MAN, "", 1, 0, 0, 0, 1, 0, 1};
    run(1, [&](HWND dlg) {
        nested = nested_call([&] { return editor_window(REQUEST_CREATE_OBJECTS, reinterpret_cast<uintptr_t>(&inner), 0); });
        // A preset alone does not show box 1025; the number is not the
        // designer's to change, so it does not grey the distance.
        EXPECT_EQ(screen(dlg), "[Man],[],[1],50.000,[],[o],[o],[o],[x],[o],[o],[o],[o]");
        ui_set_text(dlg, IDC_CO_OBJ_DIST, "8");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(record.obj_dist, 8.0f);
    EXPECT_EQ(record.type, OBJECT_MAN);  // not enabled: kept
    EXPECT_EQ(nested, 0);
    EXPECT_EQ(inner.number, 7u);
}

TEST_F(create_objects_test, validation_runs_in_order_and_passed_steps_are_remembered) {
    host.write_setting("Query", "Type", "99");  // selects no type
    ASSERT_EQ(start_editor(), 1);
    record.enabled = all_fields;
    create_objects_record before = record;
    std::vector<std::string> boxes(6);
    ui_driver d;
    d.answer_box("Editor Error", IDOK, &boxes[0]);  // the reference list has no type to ask for
    refused_ok(d, &boxes[1], [](HWND dlg) {
        EXPECT_EQ(screen(dlg), ",,1,[50.000],100.000,o,o,x,x,o,o,x,x");
        EXPECT_TRUE(ui_combo_items(dlg, IDC_CO_REF_OBJ).empty());
    });
    d.then(title, [](HWND dlg) { ui_combo_select(dlg, IDC_CO_TYPE, "Gralls (Ground Units with weapons)"); });
    refused_ok(d, &boxes[2], [](HWND dlg) {
        EXPECT_EQ(ui_combo_items(dlg, IDC_CO_REF_OBJ), (lines{"Tank1", "Tank2"}));
        ui_set_text(dlg, IDC_CO_REF_OBJ, "");
    });
    refused_ok(d, &boxes[3], [](HWND dlg) {
        ui_set_text(dlg, IDC_CO_REF_OBJ, "TANK1");
        // One object needs no spacing: the number switches the distance on and off.
        for (auto n : {std::make_pair("3", true), {"1", false}, {"10", true}, {"", false}, {"2", true}, {"11", false}}) {
            ui_set_text(dlg, IDC_CO_NUMBER, n.first);
            EXPECT_EQ(ui_enabled(dlg, IDC_CO_OBJ_DIST), n.second) << n.first;
        }
    });
    refused_ok(d, &boxes[4], [](HWND dlg) { ui_set_text(dlg, IDC_CO_NUMBER, "4"); ui_set_text(dlg, IDC_CO_OBJ_DIST, "2.5m"); });
    refused_ok(d, &boxes[5], [](HWND dlg) { ui_set_text(dlg, IDC_CO_OBJ_DIST, "2.5"); ui_set_text(dlg, IDC_CO_CAM_DIST, "-1"); });
    d.then(title, [](HWND dlg) {
        ui_set_text(dlg, IDC_CO_CAM_DIST, "12.5");
        ui_click(dlg, IDC_CO_AACAMREL);  // never reached: cancelled
        ui_command(dlg, IDCANCEL);
    });
    EXPECT_EQ(open(), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(boxes, (lines{"Invalid type of objects!", "Invalid type of objects!",
                            "Invalid reference object selection!", "Invalid selection for number of objects!",
                            "Invalid distance between objects!", "Invalid distance from camera!"}));
    EXPECT_TRUE(unchanged(before));
    // Steps that passed before the last failure were remembered, cancel or not;
    // the case-insensitive match keeps the typed text.
    const create_objects_memory &m = create_objects_remembered();
    EXPECT_STREQ(m.ref_obj, "TANK1");
    EXPECT_TRUE(m.type == 2 && m.number == 4 && m.obj_dist == 2.5f && m.cam_dist == 100.0f && m.aacamrel == 1);
}

TEST_F(create_objects_test, typed_texts_refused_with_their_messages_and_long_ones_judged_whole) {
    ASSERT_EQ(start_editor(), 1);
    record.enabled = CO_TYPE | CO_REF_OBJ | CO_NUMBER | CO_OBJ_DIST | CO_CAM_DIST;
    const std::string long_name(300, 'B');
    host.reference_names[0].push_back(long_name);  // longer than any record field
    const std::vector<const char *> bad_distances = {"2.5m", "0", "-1", "", "2.5 "};
    const struct {
        int id;
        const char *good;
        std::vector<const char *> bad;
        const char *message;
    } fields[] = {
        // A typed name is cut to 63 before the match, so the long one matches nothing; nor does a prefix.
        {IDC_CO_REF_OBJ, "Church", {long_name.c_str(), "Chur", ""}, "Invalid reference object selection!"},
        {IDC_CO_NUMBER, "2", {"0", "11", "", "x"}, "Invalid selection for number of objects!"},
        {IDC_CO_OBJ_DIST, "2", bad_distances, "Invalid distance between objects!"},
        {IDC_CO_CAM_DIST, "2", bad_distances, "Invalid distance from camera!"}};
    // One session: each bad text refused in turn, the others good; the record
    // is written only by the last, good OK.
    const create_objects_record before = record;
    std::deque<std::string> boxes;
    lines expected;
    ui_driver d;
    for (const auto &field : fields) {
        for (const char *bad : field.bad) {
            expected.push_back(field.message);
            refused_ok(d, &boxes.emplace_back(), [&, bad](HWND dlg) {
                for (const auto &f : fields) ui_set_text(dlg, f.id, f.id == field.id ? bad : f.good);
            });
        }
    }
    // Matching ignores case and stores the typed text; long texts in the
    // edits are judged whole, without overflow.
    d.then(title, [&](HWND dlg) {
        EXPECT_TRUE(unchanged(before));
        ui_set_text(dlg, IDC_CO_REF_OBJ, "cHuRcH");
        ui_set_text(dlg, IDC_CO_NUMBER, "3" + std::string(299, 'x'));  // "%u" takes the leading number
        ui_set_text(dlg, IDC_CO_OBJ_DIST, std::string(296, '0') + "2.5");
        ui_set_text(dlg, IDC_CO_CAM_DIST, " 1e3");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(open(), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(lines(boxes.begin(), boxes.end()), expected);
    EXPECT_STREQ(record.ref_obj, "cHuRcH");
    EXPECT_EQ(record.number, 3u);
    EXPECT_EQ(record.obj_dist, 2.5f);
    EXPECT_EQ(record.cam_dist, 1000.0f);

    // A preset name not terminated within its field is remembered cut to 63.
    record.preset = CO_REF_OBJ;
    std::memset(record.ref_obj, 'r', sizeof record.ref_obj);
    run(0, [](HWND dlg) { ui_command(dlg, IDCANCEL); });
    EXPECT_EQ(std::string(create_objects_remembered().ref_obj), std::string(63, 'r'));
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
     })
        .then(title, [](HWND dlg) {
            for (auto text : {std::make_pair(IDC_CO_NUMBER, "3"), {IDC_CO_OBJ_DIST, "12.5"}, {IDC_CO_CAM_DIST, "250"}})
                ui_set_text(dlg, text.first, text.second);
            for (int id : {IDC_CO_AALIGN_Y, IDC_CO_AACAMREL, IDC_CO_ORIENT_X}) ui_click(dlg, id);
        })
        .then(title, [](HWND dlg) { ui_command(dlg, IDOK); });
    EXPECT_EQ(open(), 1);
    EXPECT_DRIVER_OK(d);
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
    run(0, [](HWND dlg) {
        EXPECT_EQ(screen(dlg), "Grunit,Helipad,3,12.500,250.000,o,x,o,o,x,o,o,x");
        ui_command(dlg, IDCANCEL);
    });
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
    std::string text;
    ui_driver again;
    refused_ok(again, &text, [](HWND dlg) {
        // No type or axis selected; unparsable values keep their defaults.
        EXPECT_EQ(screen(dlg), ",[],7,50.000,100.000,o,o,o,x,o,o,o,o");
    });
    again.then(title, [](HWND dlg) { ui_combo_select(dlg, IDC_CO_TYPE, "Man"); ui_command(dlg, IDOK); });
    EXPECT_EQ(open(), 1);
    EXPECT_DRIVER_OK(again);
    EXPECT_EQ(text, "Invalid type of objects!");
    EXPECT_TRUE(record.type == OBJECT_MAN && record.aalign == 3 && record.orient == 3);  // nothing checked reads as Z
}

// Each failure to fill the reference box shows its message when the dialog
// opens and again when the type is chosen, and leaves the box empty, so OK
// is refused.
TEST_F(create_objects_test, reference_list_failures_leave_it_empty) {
    ASSERT_EQ(start_editor(), 1);
    const char *const none = "No reference object available!";
    const struct {
        const char *name;
        uint32_t enabled;
        int32_t type;
        bool refuse_acquire, refuse_release;
        const char *message;
    } scenarios[] = {{"no type offered", CO_REF_OBJ, OBJECT_WORLD, false, false, "Invalid type of objects!"},
                     {"nothing for the type", CO_TYPE | CO_REF_OBJ, OBJECT_RALLY_POINT, false, false, none},
                     {"acquire refused", CO_TYPE | CO_REF_OBJ, OBJECT_WORLD, true, false, none},
                     {"release refused", CO_TYPE | CO_REF_OBJ, OBJECT_WORLD, false, true, none}};
    for (const auto &c : scenarios) {
        SCOPED_TRACE(c.name);
        record = {c.enabled & CO_TYPE, c.enabled, c.type, "", 0, 0, 0, 0, 0, 0, 0};
        host.refuse_acquire = c.refuse_acquire;
        host.refuse_release = c.refuse_release;
        std::vector<std::string> boxes(3);
        ui_driver d;
        d.answer_box("Editor Error", IDOK, &boxes[0]);
        refused_ok(d, &boxes[1], [](HWND dlg) {
            EXPECT_TRUE(ui_combo_items(dlg, IDC_CO_REF_OBJ).empty());
            ui_set_text(dlg, IDC_CO_REF_OBJ, "Church");
        });
        if (c.enabled & CO_TYPE) {
            d.then(title, [](HWND dlg) {
                 ui_combo_select_index(dlg, IDC_CO_TYPE, int(SendDlgItemMessageA(dlg, IDC_CO_TYPE, CB_GETCURSEL, 0, 0)));
             }).answer_box("Editor Error", IDOK, &boxes[2]);
        }
        d.then(title, [](HWND dlg) {
            EXPECT_TRUE(ui_combo_items(dlg, IDC_CO_REF_OBJ).empty());
            PostMessageA(dlg, WM_CLOSE, 0, 0);  // the close box
        });
        EXPECT_EQ(open(), 0);
        EXPECT_DRIVER_OK(d);
        EXPECT_EQ(boxes, (lines{c.message, "Invalid reference object selection!", c.enabled & CO_TYPE ? c.message : ""}));
    }
    EXPECT_EQ(host.refused_releases.size(), 2u);
}
}  // namespace
