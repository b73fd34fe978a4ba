// Message requests, message boxes, the string table and centring.
#include <string>

#include "editor/editor.h"
#include "tests/support/test_host.h"
#include "util/dialogs.h"

namespace {
struct box_case {
    int request;
    const char *title;
    const char *text;
    int button;
    int expected;
};

std::string string_of(int id) {
    char text[256];
    load_string(id, text, sizeof text);
    return text;
}
}  // namespace

TEST_F(editor_test, fixed_message_requests_show_their_text_and_return_the_answer) {
    ASSERT_EQ(start_editor(), 1);
    const box_case cases[] = {
        {REQUEST_CONFIRM_QUIT, "Editor Question", "Are you sure you want to quit the editor?", IDYES, 1},
        {REQUEST_CONFIRM_QUIT, "Editor Question", "Are you sure you want to quit the editor?", IDNO, 0},
        {REQUEST_INVALID_SELECTION, "Editor Error", "Invalid selection!", IDOK, 1},
        {REQUEST_NOTHING_SELECTED, "Editor Error", "Nothing selected!", IDOK, 1},
        {REQUEST_CONFIRM_DELETE, "Editor Question", "Are you sure you want to delete?", IDYES, 1},
        {REQUEST_CONFIRM_DELETE, "Editor Question", "Are you sure you want to delete?", IDNO, 0},
        {REQUEST_UNMATCHED_GROUP, "Editor Error", "Unmatched objects selected to group", IDOK, 1},
    };
    for (const box_case &c : cases) {
        std::string text;
        bool yes_no = false;
        ui_driver driver;
        driver.then(c.title, [&](HWND box) {
            text = ui_message_text(box);
            yes_no = GetDlgItem(box, IDYES) && GetDlgItem(box, IDNO) && !GetDlgItem(box, IDOK);
            ui_command(box, c.button);
        });
        EXPECT_EQ(editor_window(c.request, 0, 0), c.expected) << c.text;
        EXPECT_DRIVER_OK(driver);
        EXPECT_EQ(text, c.text);
        EXPECT_EQ(yes_no, c.button != IDOK) << c.text;
    }
}

TEST_F(editor_test, host_message_box_takes_its_title_from_the_kind) {
    ASSERT_EQ(start_editor(), 1);
    const struct {
        int kind;
        const char *title;
        int button;
        int expected;
    } cases[] = {
        {MESSAGE_ERROR, "Editor Error", IDOK, 1},
        {MESSAGE_WARNING, "Editor Warning", IDOK, 1},
        {MESSAGE_INFORMATION, "Editor Informaiton", IDOK, 1},
        {MESSAGE_QUESTION, "Editor Question", IDYES, 1},
        {MESSAGE_QUESTION, "Editor Question", IDNO, 0},
    };
    // Percent signs must reach the box as they are.
    const char *text = "100% sure? %s %n";
    for (const auto &c : cases) {
        std::string shown;
        ui_driver driver;
        driver.answer_box(c.title, c.button, &shown);
        EXPECT_EQ(editor_window(REQUEST_MESSAGE_BOX, reinterpret_cast<uintptr_t>(text), c.kind), c.expected);
        EXPECT_DRIVER_OK(driver);
        EXPECT_EQ(shown, text);
    }
    // A kind outside the table still shows a plain OK box.
    ui_driver driver;
    bool has_ok = false;
    driver.then("Editor Error", [&](HWND box) {
        has_ok = GetDlgItem(box, IDOK) != nullptr;
        ui_command(box, IDOK);
    });
    EXPECT_EQ(editor_window(REQUEST_MESSAGE_BOX, reinterpret_cast<uintptr_t>(text), 9), 1);
    EXPECT_DRIVER_OK(driver);
    EXPECT_TRUE(has_ok);
}

TEST_F(editor_test, nothing_is_shown_while_stopped_or_for_unknown_ids) {
    // The driver fails the test if any box appears.
    ui_driver driver(1500);
    EXPECT_EQ(show_message("text", MESSAGE_ERROR), 0);
    EXPECT_EQ(show_message_id(7, MESSAGE_ERROR), 0);
    EXPECT_EQ(editor_window(REQUEST_CONFIRM_QUIT, 0, 0), 0);
    ASSERT_EQ(start_editor(), 1);
    EXPECT_EQ(show_message_id(0, MESSAGE_ERROR), 0);
    EXPECT_EQ(show_message_id(81, MESSAGE_ERROR), 0);
    EXPECT_EQ(editor_window(16, 0, 0), 0);
    EXPECT_EQ(editor_window(-1, 0, 0), 0);
    EXPECT_DRIVER_OK(driver);
}

TEST(string_table, has_all_eighty_texts_with_their_quirks) {
    for (int id = 1; id <= 80; ++id) EXPECT_FALSE(string_of(id).empty()) << id;
    EXPECT_TRUE(string_of(81).empty());
    EXPECT_EQ(string_of(1), "Failed to initialise floating toolbar window!");
    EXPECT_EQ(string_of(4), "Editor Informaiton");
    EXPECT_EQ(string_of(24), "Gralls (Ground Units with weapons)");
    EXPECT_EQ(string_of(42), string_of(55));
    EXPECT_EQ(string_of(45), "Formation Rotation (DEGS)");
    EXPECT_EQ(string_of(80), "Man");
}

TEST(dialog_helpers, add_string_cuts_to_31_characters_and_centre_uses_the_reference_area) {
    HWND parent = CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 300, 200, nullptr, nullptr, nullptr, nullptr);
    HWND combo = CreateWindowA("COMBOBOX", "", WS_CHILD | CBS_DROPDOWNLIST, 0, 0, 100, 100, parent, nullptr,
                               nullptr, nullptr);
    HWND list = CreateWindowA("LISTBOX", "", WS_CHILD | LBS_SORT, 0, 0, 100, 100, parent, nullptr, nullptr, nullptr);
    EXPECT_EQ(combo_add_string_id(combo, 24), 0);
    EXPECT_EQ(combo_add_string_id(combo, 80), 1);
    char text[64] = "";
    SendMessageA(combo, CB_GETLBTEXT, 0, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(text, "Gralls (Ground Units with weapo");
    list_add_string_id(list, 80);
    EXPECT_EQ(list_add_string_id(list, 79), 0);  // "Grunit" sorts before "Man"

    // A child of width 100 in a parent 300 wide: (301 - 100 - 1) / 2 = 100.
    HWND child = CreateWindowA("STATIC", "", WS_CHILD, 5, 5, 100, 50, parent, nullptr, nullptr, nullptr);
    centre_dialog(child);
    RECT r;
    GetWindowRect(child, &r);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT *>(&r), 2);
    EXPECT_EQ(r.left, 100);
    EXPECT_EQ(r.top, (201 - 50 - 1) / 2);

    HWND top = CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 401, 300, nullptr, nullptr, nullptr, nullptr);
    centre_dialog(top);
    GetWindowRect(top, &r);
    EXPECT_EQ(r.left, (GetSystemMetrics(SM_CXSCREEN) - 401 - 1) / 2);
    EXPECT_EQ(r.top, (GetSystemMetrics(SM_CYSCREEN) - 300 - 1) / 2);
    DestroyWindow(top);
    DestroyWindow(parent);
}
