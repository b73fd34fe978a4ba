// The Create New Objects dialog driven like a designer: what each control
// shows for the record's preset and enabled bits, the validation order and
// messages, and the remembered choices kept in the settings file.
#include <cstring>
#include <string>
#include <vector>

#include "editor/editor.h"
#include "placement/create_objects.h"
#include "util/dialogs.h"
#include "tests/support/test_host.h"

namespace {
const char *const title = "Create New Objects";
const uint32_t all_fields = 0x1FF;

const std::vector<std::string> sorted_types = {
    "Bombing Run", "Cultural", "Gralls (Ground Units with weapons)", "Group Waypoint Object", "Grunit",
    "Helicopter", "Man", "Rally Point", "World (General)"};

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

    // Opens the dialog, expects OK to be refused with `message`, cancels, and
    // checks that the record kept every byte.
    void expect_refused(ui_driver &d, const std::string &message) {
        create_objects_record before = record;
        std::string text;
        d.then(title, [](HWND dlg) { ui_command(dlg, IDOK); })
            .answer_box("Editor Error", IDOK, &text)
            .then(title, [](HWND dlg) { ui_command(dlg, IDCANCEL); });
        EXPECT_EQ(open(), 0);
        EXPECT_DRIVER_OK(d);
        EXPECT_EQ(text, message);
        EXPECT_EQ(std::memcmp(&before, &record, sizeof record), 0) << "record changed by a refused dialog";
    }
};

TEST_F(create_objects_test, preset_number_above_ten_is_refused_without_a_dialog) {
    ASSERT_EQ(start_editor(), 1);
    record.preset = CO_NUMBER;
    record.enabled = all_fields;
    record.number = 11;
    create_objects_record before = record;
    std::string text;
    ui_driver d;
    d.answer_box("Editor Error", IDOK, &text);
    EXPECT_EQ(open(), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(text, "Invalid selection for number of objects!");
    EXPECT_EQ(std::memcmp(&before, &record, sizeof record), 0);
}

TEST_F(create_objects_test, template_header) {
    HRSRC found = FindResourceA(editor_instance(), MAKEINTRESOURCEA(IDD_CREATE_OBJECTS), MAKEINTRESOURCEA(5));
    ASSERT_NE(found, nullptr);
    const auto *header = static_cast<const DLGTEMPLATE *>(LockResource(LoadResource(editor_instance(), found)));
    EXPECT_EQ(header->style, 0x80C800C4u);
    EXPECT_EQ(header->cdit, 22);
    EXPECT_EQ(header->cx, 217);
    EXPECT_EQ(header->cy, 274);
}

TEST_F(create_objects_test, nothing_offered_shows_nothing_and_ok_keeps_the_record) {
    ASSERT_EQ(start_editor(), 1);
    std::memset(record.ref_obj, 'q', sizeof record.ref_obj);  // not even terminated
    create_objects_record before = record;
    ui_driver d;
    d.then(title, [](HWND dlg) {
        for (int id : {IDC_CO_TYPE, IDC_CO_REF_OBJ, IDC_CO_NUMBER, IDC_CO_OBJ_DIST, IDC_CO_CAM_DIST, IDC_CO_AALIGN_X,
                       IDC_CO_AALIGN_Y, IDC_CO_AALIGN_Z, IDC_CO_AACAMREL, IDC_CO_ORIENT_X, IDC_CO_ORIENT_Y,
                       IDC_CO_ORIENT_Z, IDC_CO_OCAMREL}) {
            EXPECT_FALSE(ui_enabled(dlg, id)) << id;
            EXPECT_FALSE(ui_checked(dlg, id)) << id;
        }
        EXPECT_TRUE(ui_combo_items(dlg, IDC_CO_TYPE).empty());
        EXPECT_TRUE(ui_combo_items(dlg, IDC_CO_REF_OBJ).empty());
        for (int id : {IDC_CO_NUMBER, IDC_CO_OBJ_DIST, IDC_CO_CAM_DIST}) EXPECT_EQ(ui_text(dlg, id), "") << id;
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(open(), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(std::memcmp(&before, &record, sizeof record), 0);
}

TEST_F(create_objects_test, preset_values_shown_and_preset_name_remembered_at_once) {
    ASSERT_EQ(start_editor(), 1);
    record.preset = all_fields;
    record.enabled = all_fields;
    record.type = OBJECT_GRALLS;
    copy_text(record.ref_obj, "tank2");
    record.number = 4;
    record.obj_dist = 12.5f;
    record.cam_dist = 7.25f;
    record.aalign = 1;
    record.aacamrel = 0;
    record.orient = 2;
    record.ocamrel = 0;
    ui_driver d;
    d.then(title, [](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, IDC_CO_TYPE), "Gralls (Ground Units with weapons)");  // not cut to 31
        EXPECT_EQ(ui_combo_selected(dlg, IDC_CO_REF_OBJ), "Tank2");
        EXPECT_EQ(ui_text(dlg, IDC_CO_NUMBER), "4");
        EXPECT_EQ(ui_text(dlg, IDC_CO_OBJ_DIST), "12.500");
        EXPECT_TRUE(ui_enabled(dlg, IDC_CO_OBJ_DIST));
        EXPECT_EQ(ui_text(dlg, IDC_CO_CAM_DIST), "7.250");
        EXPECT_TRUE(ui_checked(dlg, IDC_CO_AALIGN_X));
        EXPECT_FALSE(ui_checked(dlg, IDC_CO_AACAMREL));
        EXPECT_TRUE(ui_checked(dlg, IDC_CO_ORIENT_Y));
        EXPECT_FALSE(ui_checked(dlg, IDC_CO_OCAMREL));
        ui_command(dlg, IDCANCEL);
    });
    EXPECT_EQ(open(), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(record.ocamrel, 0);
    // Cancelled, yet the host's name was taken up when the dialog opened.
    EXPECT_STREQ(create_objects_remembered().ref_obj, "tank2");
    EXPECT_EQ(create_objects_remembered().type, 0u);
}

TEST_F(create_objects_test, shown_but_disabled_when_only_preset) {
    ASSERT_EQ(start_editor(), 1);
    record.preset = CO_AACAMREL | CO_OCAMREL | CO_NUMBER | CO_TYPE;
    record.aacamrel = 1;
    record.ocamrel = 1;
    record.number = 1;
    record.type = OBJECT_MAN;
    record.enabled = CO_OBJ_DIST;
    ui_driver d;
    d.then(title, [](HWND dlg) {
        EXPECT_TRUE(ui_checked(dlg, IDC_CO_AACAMREL));
        EXPECT_FALSE(ui_enabled(dlg, IDC_CO_AACAMREL));
        EXPECT_FALSE(ui_checked(dlg, IDC_CO_OCAMREL));  // a preset alone does not show this box
        EXPECT_EQ(ui_combo_selected(dlg, IDC_CO_TYPE), "Man");
        EXPECT_FALSE(ui_enabled(dlg, IDC_CO_TYPE));
        EXPECT_EQ(ui_text(dlg, IDC_CO_NUMBER), "1");
        // The number is not the designer's to change, so it does not gate the distance.
        EXPECT_TRUE(ui_enabled(dlg, IDC_CO_OBJ_DIST));
        ui_set_text(dlg, IDC_CO_OBJ_DIST, "8");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(open(), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(record.obj_dist, 8.0f);
    EXPECT_EQ(record.type, OBJECT_MAN);  // not enabled: kept
}

TEST_F(create_objects_test, number_switches_the_distance_between_objects) {
    ASSERT_EQ(start_editor(), 1);
    record.enabled = all_fields;
    std::string text;
    ui_driver d;
    d.then(title, [](HWND dlg) {
         EXPECT_FALSE(ui_enabled(dlg, IDC_CO_OBJ_DIST));
         ui_set_text(dlg, IDC_CO_NUMBER, "3");
         EXPECT_TRUE(ui_enabled(dlg, IDC_CO_OBJ_DIST));
         ui_set_text(dlg, IDC_CO_NUMBER, "11");
         EXPECT_FALSE(ui_enabled(dlg, IDC_CO_OBJ_DIST));
         ui_set_text(dlg, IDC_CO_NUMBER, "10");
         EXPECT_TRUE(ui_enabled(dlg, IDC_CO_OBJ_DIST));
         ui_set_text(dlg, IDC_CO_NUMBER, "");
         EXPECT_FALSE(ui_enabled(dlg, IDC_CO_OBJ_DIST));
         ui_set_text(dlg, IDC_CO_NUMBER, "11");
         ui_command(dlg, IDOK);
     })
        .answer_box("Editor Error", IDOK, &text)
        .then(title, [](HWND dlg) { ui_command(dlg, IDCANCEL); });
    EXPECT_EQ(open(), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(text, "Invalid selection for number of objects!");
}

TEST_F(create_objects_test, validation_runs_in_order_and_passed_steps_are_remembered) {
    host.write_setting("Query", "Type", "99");  // selects no type
    ASSERT_EQ(start_editor(), 1);
    record.enabled = all_fields;
    std::vector<std::string> boxes(7);
    ui_driver d;
    d.answer_box("Editor Error", IDOK, &boxes[0])  // the reference list has no type to ask for
        .then(title,
              [](HWND dlg) {
                  EXPECT_EQ(ui_combo_selected(dlg, IDC_CO_TYPE), "");
                  EXPECT_TRUE(ui_combo_items(dlg, IDC_CO_REF_OBJ).empty());
                  ui_command(dlg, IDOK);
              })
        .answer_box("Editor Error", IDOK, &boxes[1])
        .then(title, [](HWND dlg) { ui_combo_select(dlg, IDC_CO_TYPE, "Gralls (Ground Units with weapons)"); })
        .then(title,
              [](HWND dlg) {
                  EXPECT_EQ(ui_combo_items(dlg, IDC_CO_REF_OBJ), (std::vector<std::string>{"Tank1", "Tank2"}));
                  ui_set_text(dlg, IDC_CO_REF_OBJ, "");
                  ui_command(dlg, IDOK);
              })
        .answer_box("Editor Error", IDOK, &boxes[2])
        .then(title,
              [](HWND dlg) {
                  ui_set_text(dlg, IDC_CO_REF_OBJ, "TANK1");
                  ui_set_text(dlg, IDC_CO_NUMBER, "0");
                  ui_command(dlg, IDOK);
              })
        .answer_box("Editor Error", IDOK, &boxes[3])
        .then(title,
              [](HWND dlg) {
                  ui_set_text(dlg, IDC_CO_NUMBER, "4");
                  ui_set_text(dlg, IDC_CO_OBJ_DIST, "2.5m");
                  ui_command(dlg, IDOK);
              })
        .answer_box("Editor Error", IDOK, &boxes[4])
        .then(title,
              [](HWND dlg) {
                  ui_set_text(dlg, IDC_CO_OBJ_DIST, "2.5");
                  ui_set_text(dlg, IDC_CO_CAM_DIST, "-1");
                  ui_command(dlg, IDOK);
              })
        .answer_box("Editor Error", IDOK, &boxes[5])
        .then(title, [](HWND dlg) {
            ui_set_text(dlg, IDC_CO_CAM_DIST, "12.5");
            ui_click(dlg, IDC_CO_AACAMREL);
            ui_command(dlg, IDCANCEL);
        });
    create_objects_record before = record;
    EXPECT_EQ(open(), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(boxes[0], "Invalid type of objects!");
    EXPECT_EQ(boxes[1], "Invalid type of objects!");
    EXPECT_EQ(boxes[2], "Invalid reference object selection!");
    EXPECT_EQ(boxes[3], "Invalid selection for number of objects!");
    EXPECT_EQ(boxes[4], "Invalid distance between objects!");
    EXPECT_EQ(boxes[5], "Invalid distance from camera!");
    EXPECT_EQ(std::memcmp(&before, &record, sizeof record), 0);

    // Steps that passed before the last failure were remembered, cancel or not;
    // the case-insensitive match keeps the typed text.
    const create_objects_memory &m = create_objects_remembered();
    EXPECT_EQ(m.type, 2u);
    EXPECT_STREQ(m.ref_obj, "TANK1");
    EXPECT_EQ(m.number, 4u);
    EXPECT_EQ(m.obj_dist, 2.5f);
    EXPECT_EQ(m.cam_dist, 100.0f);
    EXPECT_EQ(m.aacamrel, 1u);  // never reached
}

TEST_F(create_objects_test, distance_rules) {
    ASSERT_EQ(start_editor(), 1);
    record.enabled = CO_OBJ_DIST | CO_CAM_DIST;
    for (const char *bad : {"2.5m", "0", "-1", "", "nan", "2.5 ", "abc"}) {
        for (int id : {IDC_CO_OBJ_DIST, IDC_CO_CAM_DIST}) {
            SCOPED_TRACE(std::string("text \"") + bad + "\" in " + std::to_string(id));
            ui_driver d;
            d.then(title, [&](HWND dlg) {
                ui_set_text(dlg, IDC_CO_OBJ_DIST, id == IDC_CO_OBJ_DIST ? bad : "1");
                ui_set_text(dlg, IDC_CO_CAM_DIST, id == IDC_CO_CAM_DIST ? bad : "1");
            });
            expect_refused(d, id == IDC_CO_OBJ_DIST ? "Invalid distance between objects!"
                                                    : "Invalid distance from camera!");
        }
    }
    ui_driver d;
    d.then(title, [](HWND dlg) {
        ui_set_text(dlg, IDC_CO_OBJ_DIST, "2.5");
        ui_set_text(dlg, IDC_CO_CAM_DIST, " 1e3");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(open(), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(record.obj_dist, 2.5f);
    EXPECT_EQ(record.cam_dist, 1000.0f);
}

TEST_F(create_objects_test, reference_must_match_an_item) {
    ASSERT_EQ(start_editor(), 1);
    record.enabled = CO_TYPE | CO_REF_OBJ;
    const std::string long_name(300, 'B');
    host.reference_names[0].push_back(long_name);  // longer than any record field
    {
        ui_driver d;
        d.then(title, [&](HWND dlg) { ui_set_text(dlg, IDC_CO_REF_OBJ, long_name); });
        expect_refused(d, "Invalid reference object selection!");  // cut to 63, so it matches nothing
    }
    {
        ui_driver d;
        d.then(title, [](HWND dlg) { ui_set_text(dlg, IDC_CO_REF_OBJ, "Chur"); });
        expect_refused(d, "Invalid reference object selection!");
    }
    // Matching ignores case and stores the typed text; over-long texts in
    // the other edits are judged whole, without overflow.
    record.enabled |= CO_NUMBER | CO_OBJ_DIST;
    ui_driver d;
    d.then(title, [](HWND dlg) {
        ui_set_text(dlg, IDC_CO_REF_OBJ, "cHuRcH");
        ui_set_text(dlg, IDC_CO_NUMBER, "3" + std::string(299, 'x'));  // "%u" takes the leading number
        ui_set_text(dlg, IDC_CO_OBJ_DIST, std::string(296, '0') + "2.5");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(open(), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_STREQ(record.ref_obj, "cHuRcH");
    EXPECT_EQ(record.number, 3u);
    EXPECT_EQ(record.obj_dist, 2.5f);

    // A preset name not terminated within its field is remembered cut to 63.
    record.preset = CO_REF_OBJ;
    std::memset(record.ref_obj, 'r', sizeof record.ref_obj);
    ui_driver d2;
    d2.then(title, [](HWND dlg) { ui_command(dlg, IDCANCEL); });
    EXPECT_EQ(open(), 0);
    EXPECT_DRIVER_OK(d2);
    EXPECT_EQ(std::string(create_objects_remembered().ref_obj), std::string(63, 'r'));
}

TEST_F(create_objects_test, defaults_then_choices_survive_a_restart_through_the_settings_file) {
    ASSERT_EQ(start_editor(), 1);
    record.enabled = all_fields;
    ui_driver d;
    d.then(title, [](HWND dlg) {
         EXPECT_EQ(ui_combo_items(dlg, IDC_CO_TYPE), sorted_types);
         EXPECT_EQ(ui_combo_selected(dlg, IDC_CO_TYPE), "World (General)");
         EXPECT_EQ(SendDlgItemMessageA(dlg, IDC_CO_TYPE, CB_GETITEMDATA, 4, 0), OBJECT_GRUNIT);
         EXPECT_EQ(ui_combo_items(dlg, IDC_CO_REF_OBJ), (std::vector<std::string>{"Bridge1", "Church", "Crossroads"}));
         EXPECT_EQ(ui_text(dlg, IDC_CO_REF_OBJ), "Bridge1");  // nothing remembered: the first item
         EXPECT_EQ(ui_text(dlg, IDC_CO_NUMBER), "1");
         EXPECT_EQ(ui_text(dlg, IDC_CO_OBJ_DIST), "50.000");
         EXPECT_FALSE(ui_enabled(dlg, IDC_CO_OBJ_DIST));  // one object: no spacing
         EXPECT_EQ(ui_text(dlg, IDC_CO_CAM_DIST), "100.000");
         for (int id : {IDC_CO_AALIGN_Z, IDC_CO_AACAMREL, IDC_CO_ORIENT_Z, IDC_CO_OCAMREL}) EXPECT_TRUE(ui_checked(dlg, id));
         ui_combo_select(dlg, IDC_CO_TYPE, "Grunit");
     })
        .then(title, [](HWND dlg) {
            ui_set_text(dlg, IDC_CO_NUMBER, "3");
            ui_set_text(dlg, IDC_CO_OBJ_DIST, "12.5");
            ui_set_text(dlg, IDC_CO_CAM_DIST, "250");
            ui_click(dlg, IDC_CO_AALIGN_Y);
            ui_click(dlg, IDC_CO_AACAMREL);
            ui_click(dlg, IDC_CO_ORIENT_X);
        })
        .then(title, [](HWND dlg) { ui_command(dlg, IDOK); });
    EXPECT_EQ(open(), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(record.type, OBJECT_GRUNIT);
    EXPECT_STREQ(record.ref_obj, "Helipad");
    EXPECT_EQ(record.number, 3u);
    EXPECT_EQ(record.cam_dist, 250.0f);
    EXPECT_EQ(record.aalign, CO_AXIS_Y);
    EXPECT_EQ(record.aacamrel, 0);
    EXPECT_EQ(record.orient, CO_AXIS_X);
    EXPECT_EQ(record.ocamrel, 1);
    ASSERT_EQ(editor_tidyup(), 1);

    const char *const expected[][2] = {{"Type", "7"},         {"RefObj", "Helipad"}, {"Number", "3"},
                                       {"ObjDist", "12.500000"}, {"CamDist", "250.000000"}, {"AAlign", "2"},
                                       {"AACamRel", "0"},     {"Orient", "1"},       {"OCamrel", "1"}};
    for (const auto &key : expected) EXPECT_EQ(host.read_setting("Query", key[0]), key[1]) << key[0];

    // A new run starts from the file: Grunit sits between Group Waypoint Object and Helicopter.
    ASSERT_EQ(start_editor(), 1);
    record.enabled = CO_TYPE | CO_REF_OBJ | CO_OBJ_DIST | CO_NUMBER | CO_AACAMREL;
    ui_driver d2;
    d2.then(title, [](HWND dlg) {
        EXPECT_EQ(ui_combo_items(dlg, IDC_CO_TYPE)[4], "Grunit");
        EXPECT_EQ(ui_combo_selected(dlg, IDC_CO_TYPE), "Grunit");
        EXPECT_EQ(ui_combo_selected(dlg, IDC_CO_REF_OBJ), "Helipad");
        EXPECT_EQ(ui_text(dlg, IDC_CO_OBJ_DIST), "12.500");
        EXPECT_TRUE(ui_enabled(dlg, IDC_CO_OBJ_DIST));
        EXPECT_FALSE(ui_checked(dlg, IDC_CO_AACAMREL));
        ui_command(dlg, IDCANCEL);
    });
    EXPECT_EQ(open(), 0);
    EXPECT_DRIVER_OK(d2);
}

TEST_F(create_objects_test, hand_edited_settings_select_nothing_and_break_nothing) {
    host.write_setting("Query", "Type", "12");
    host.write_setting("Query", "RefObj", std::string(200, 'n').c_str());
    host.write_setting("Query", "Number", "7 apples");
    host.write_setting("Query", "ObjDist", "far");
    host.write_setting("Query", "CamDist", "");
    host.write_setting("Query", "AAlign", "9");
    host.write_setting("Query", "AACamRel", "yes");
    host.write_setting("Query", "Orient", "-2");
    host.write_setting("Query", "OCamrel", "0");
    ASSERT_EQ(start_editor(), 1);
    EXPECT_EQ(std::strlen(create_objects_remembered().ref_obj), 63u);
    record.enabled = all_fields & ~CO_REF_OBJ;
    ui_driver d;
    d.then(title, [](HWND dlg) {
        EXPECT_EQ(ui_combo_selected(dlg, IDC_CO_TYPE), "");
        EXPECT_EQ(ui_text(dlg, IDC_CO_NUMBER), "7");
        EXPECT_EQ(ui_text(dlg, IDC_CO_OBJ_DIST), "50.000");
        EXPECT_EQ(ui_text(dlg, IDC_CO_CAM_DIST), "100.000");
        for (int id : {IDC_CO_AALIGN_X, IDC_CO_AALIGN_Y, IDC_CO_AALIGN_Z, IDC_CO_ORIENT_X, IDC_CO_ORIENT_Y,
                       IDC_CO_ORIENT_Z})
            EXPECT_FALSE(ui_checked(dlg, id)) << id;
        EXPECT_TRUE(ui_checked(dlg, IDC_CO_AACAMREL));  // unparsable: the default
        EXPECT_FALSE(ui_checked(dlg, IDC_CO_OCAMREL));
        ui_command(dlg, IDOK);
    });
    std::string text;
    d.answer_box("Editor Error", IDOK, &text).then(title, [](HWND dlg) {
        ui_combo_select(dlg, IDC_CO_TYPE, "Man");
        ui_command(dlg, IDOK);
    });
    EXPECT_EQ(open(), 1);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(text, "Invalid type of objects!");
    EXPECT_EQ(record.aalign, 3);  // nothing checked reads as Z
    EXPECT_EQ(record.orient, 3);
    ASSERT_EQ(editor_tidyup(), 1);
    EXPECT_EQ(host.read_setting("Query", "Type"), "8");
    EXPECT_EQ(host.read_setting("Query", "AACamRel"), "1");
}

TEST_F(create_objects_test, host_without_reference_objects) {
    ASSERT_EQ(start_editor(), 1);
    record.enabled = CO_TYPE | CO_REF_OBJ;
    record.preset = CO_TYPE;
    record.type = OBJECT_RALLY_POINT;  // the host offers nothing for it
    std::vector<std::string> boxes(4);
    ui_driver d;
    d.answer_box("Editor Error", IDOK, &boxes[0])
        .then(title,
              [](HWND dlg) {
                  EXPECT_TRUE(ui_combo_items(dlg, IDC_CO_REF_OBJ).empty());
                  ui_set_text(dlg, IDC_CO_REF_OBJ, "Church");
                  ui_command(dlg, IDOK);
              })
        .answer_box("Editor Error", IDOK, &boxes[1])
        .then(title, [](HWND dlg) { ui_combo_select(dlg, IDC_CO_TYPE, "World (General)"); })
        .then(title, [](HWND dlg) { ui_combo_select(dlg, IDC_CO_TYPE, "Rally Point"); })
        .answer_box("Editor Error", IDOK, &boxes[2])
        .then(title, [](HWND dlg) {
            EXPECT_TRUE(ui_combo_items(dlg, IDC_CO_REF_OBJ).empty());
            ui_command(dlg, IDCANCEL);
        });
    EXPECT_EQ(open(), 0);
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(boxes[0], "No reference object available!");
    EXPECT_EQ(boxes[1], "Invalid reference object selection!");
    EXPECT_EQ(boxes[2], "No reference object available!");
}


TEST_F(create_objects_test, reference_list_failures_leave_it_empty) {
    ASSERT_EQ(start_editor(), 1);
    struct scenario {
        const char *name;
        uint32_t enabled;
        bool refuse_acquire, refuse_release;
        const char *message;
    } scenarios[] = {
        {"no type offered", CO_REF_OBJ, false, false, "Invalid type of objects!"},
        {"acquire refused", CO_TYPE | CO_REF_OBJ, true, false, "No reference object available!"},
        {"release refused", CO_TYPE | CO_REF_OBJ, false, true, "No reference object available!"},
    };
    for (const scenario &c : scenarios) {
        SCOPED_TRACE(c.name);
        record.enabled = c.enabled;
        host.refuse_acquire = c.refuse_acquire;
        host.refuse_release = c.refuse_release;
        std::string text;
        ui_driver d;
        d.answer_box("Editor Error", IDOK, &text).then(title, [](HWND dlg) {
            EXPECT_TRUE(ui_combo_items(dlg, IDC_CO_REF_OBJ).empty());
            PostMessageA(dlg, WM_CLOSE, 0, 0);  // the close box
        });
        EXPECT_EQ(open(), 0);
        EXPECT_DRIVER_OK(d);
        EXPECT_EQ(text, c.message);
    }
    EXPECT_EQ(host.refused_releases.size(), 1u);
}
}  // namespace
