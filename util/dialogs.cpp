#include "util/dialogs.h"

#include "editor/editor.h"
#include "resources/string_ids.h"

namespace {
struct message_style {
    int title_id;
    UINT flags;
};

// Titles and box flags by message_kind; all boxes are task-modal.
const message_style message_styles[] = {
    {IDS_TITLE_ERROR, MB_TASKMODAL | MB_ICONHAND | MB_OK},
    {IDS_TITLE_WARNING, MB_TASKMODAL | MB_ICONEXCLAMATION | MB_OK},
    {IDS_TITLE_INFORMATION, MB_TASKMODAL | MB_ICONASTERISK | MB_OK},
    {IDS_TITLE_QUESTION, MB_TASKMODAL | MB_ICONQUESTION | MB_YESNO},
};

LRESULT add_string_id(HWND control, UINT message, int id) {
    char text[32];
    load_string(id, text, sizeof text);
    return SendMessageA(control, message, 0, reinterpret_cast<LPARAM>(text));
}
}  // namespace

int load_string(int id, char *buffer, int size) {
    if (size <= 0) return 0;
    buffer[0] = '\0';
    int length = LoadStringA(editor_instance(), static_cast<UINT>(id), buffer, size);
    if (length < 0) length = 0;
    buffer[size - 1] = '\0';
    return length;
}

int show_message(const char *text, int kind) {
    if (!editor_started) return 0;
    // Kinds outside the table get a plain OK box; its title is the error title.
    message_style style = {IDS_TITLE_ERROR, MB_TASKMODAL};
    if (kind >= MESSAGE_ERROR && kind <= MESSAGE_QUESTION) style = message_styles[kind];
    char title[256];
    load_string(style.title_id, title, sizeof title);
    int answer = MessageBoxA(nullptr, text ? text : "", title, style.flags);
    return answer == IDOK || answer == IDYES ? 1 : 0;
}

int show_message_id(int id, int kind) {
    char text[256];
    if (load_string(id, text, sizeof text) == 0) return 0;
    return show_message(text, kind);
}

void centre_dialog(HWND window) {
    int width;
    int height;
    HWND parent = GetParent(window);
    RECT rect;
    if ((GetWindowLongA(window, GWL_STYLE) & WS_CHILD) && parent) {
        GetWindowRect(parent, &rect);
        width = rect.right - rect.left + 1;
        height = rect.bottom - rect.top + 1;
    } else {
        width = GetSystemMetrics(SM_CXSCREEN);
        height = GetSystemMetrics(SM_CYSCREEN);
    }
    GetWindowRect(window, &rect);
    int x = (width - (rect.right - rect.left) - 1) / 2;
    int y = (height - (rect.bottom - rect.top) - 1) / 2;
    SetWindowPos(window, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

LRESULT combo_add_string_id(HWND combo, int id) { return add_string_id(combo, CB_ADDSTRING, id); }

LRESULT list_add_string_id(HWND list, int id) { return add_string_id(list, LB_ADDSTRING, id); }
