// Message requests, message boxes, the string table and centring.
#include <string>

#include "editor/editor.h"
#include "resources/string_ids.h"
#include "tests/support/editor_test.h"
#include "util/dialogs.h"

namespace {
std::string string_of(int id) {
    char text[256];
    load_string(id, text, sizeof text);
    return text;
}
}  // namespace

TEST_F(editor_test, message_requests_and_host_boxes_show_their_text_and_return_the_answer) {
    ASSERT_EQ(start_editor(), 1);
    const char *quit = "Are you sure you want to quit the editor?", *del = "Are you sure you want to delete?";
    const char *host_text = "100% sure? %s %n";  // percent signs must reach the box as they are
    const uintptr_t from_host = reinterpret_cast<uintptr_t>(host_text);
    const struct {
        int request;
        uintptr_t text_arg, kind;
        const char *title, *text;
        int button, expected;
    } cases[] = {
        {REQUEST_CONFIRM_QUIT, 0, 0, "Editor Question", quit, IDYES, 1},
        {REQUEST_CONFIRM_QUIT, 0, 0, "Editor Question", quit, IDNO, 0},
        {REQUEST_INVALID_SELECTION, 0, 0, "Editor Error", "Invalid selection!", IDOK, 1},
        {REQUEST_NOTHING_SELECTED, 0, 0, "Editor Error", "Nothing selected!", IDOK, 1},
        {REQUEST_CONFIRM_DELETE, 0, 0, "Editor Question", del, IDYES, 1},
        {REQUEST_CONFIRM_DELETE, 0, 0, "Editor Question", del, IDNO, 0},
        {REQUEST_UNMATCHED_GROUP, 0, 0, "Editor Error", "Unmatched objects selected to group", IDOK, 1},
        {REQUEST_MESSAGE_BOX, from_host, MESSAGE_ERROR, "Editor Error", host_text, IDOK, 1},
        {REQUEST_MESSAGE_BOX, from_host, MESSAGE_WARNING, "Editor Warning", host_text, IDOK, 1},
        {REQUEST_MESSAGE_BOX, from_host, MESSAGE_INFORMATION, "Editor Informaiton", host_text, IDOK, 1},
        {REQUEST_MESSAGE_BOX, from_host, MESSAGE_QUESTION, "Editor Question", host_text, IDYES, 1},
        {REQUEST_MESSAGE_BOX, from_host, MESSAGE_QUESTION, "Editor Question", host_text, IDNO, 0},
        {REQUEST_MESSAGE_BOX, from_host, 9, "Editor Error", host_text, IDOK, 1},  // a kind outside the table
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string(c.title) + ": " + c.text);
        std::string text;
        bool ok_only = false, yes_no = false;
        ui_driver driver;
        driver.then(c.title, [&](HWND box) {
            text = ui_message_text(box);
            ok_only = GetDlgItem(box, IDOK) && !GetDlgItem(box, IDYES) && !GetDlgItem(box, IDNO);
            yes_no = GetDlgItem(box, IDYES) && GetDlgItem(box, IDNO) && !GetDlgItem(box, IDOK);
            ui_command(box, c.button);
        });
        EXPECT_EQ(editor_window(c.request, c.text_arg, c.kind), c.expected);
        EXPECT_DRIVER_OK(driver);
        EXPECT_EQ(text, c.text);
        EXPECT_TRUE(c.button == IDOK ? ok_only : yes_no);
    }
}

TEST_F(editor_test, nothing_is_shown_while_stopped_or_for_unknown_ids) {
    // The driver fails the test if any box appears.
    ui_driver driver(1500);
    EXPECT_EQ(show_message("text", MESSAGE_ERROR), 0);
    EXPECT_EQ(show_message_id(IDS_INVALID_SELECTION, MESSAGE_ERROR), 0);
    EXPECT_EQ(editor_window(REQUEST_CONFIRM_QUIT, 0, 0), 0);
    ASSERT_EQ(start_editor(), 1);
    EXPECT_EQ(show_message_id(0, MESSAGE_ERROR), 0);
    EXPECT_EQ(show_message_id(IDS_TYPE_MAN + 1, MESSAGE_ERROR), 0);
    EXPECT_EQ(editor_window(16, 0, 0), 0);
    EXPECT_EQ(editor_window(-1, 0, 0), 0);
    EXPECT_DRIVER_OK(driver);
}

TEST(dialog_helpers, strings_load_and_are_cut_to_31_characters_and_centre_uses_the_reference_area) {
    for (int id = 1; id <= IDS_TYPE_MAN; ++id) EXPECT_FALSE(string_of(id).empty()) << id;
    EXPECT_TRUE(string_of(IDS_TYPE_MAN + 1).empty());
    HWND parent = CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 300, 200, nullptr, nullptr, nullptr, nullptr);
    HWND combo = CreateWindowA("COMBOBOX", "", WS_CHILD | CBS_DROPDOWNLIST, 0, 0, 100, 100, parent, nullptr,
                               nullptr, nullptr);
    HWND list = CreateWindowA("LISTBOX", "", WS_CHILD | LBS_SORT, 0, 0, 100, 100, parent, nullptr, nullptr, nullptr);
    EXPECT_EQ(combo_add_string_id(combo, IDS_TYPE_GRALLS), 0);
    EXPECT_EQ(combo_add_string_id(combo, IDS_TYPE_MAN), 1);
    char text[64] = "";
    SendMessageA(combo, CB_GETLBTEXT, 0, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(text, "Gralls (Ground Units with weapo");
    list_add_string_id(list, IDS_TYPE_MAN);
    EXPECT_EQ(list_add_string_id(list, IDS_TYPE_GRUNIT), 0);  // sorted before "Man"

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
