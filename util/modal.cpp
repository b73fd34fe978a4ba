#include "util/modal.h"

#include "editor/editor.h"

INT_PTR dialog_message(const dialog_class &dialog, HWND window, UINT message, WPARAM wparam) {
    switch (message) {
    case WM_INITDIALOG:
        dialog.on_init(window);
        return dialog.init_result;
    case WM_COMMAND: {
        const int id = LOWORD(wparam);
        const int code = HIWORD(wparam);
        if (dialog.on_command && dialog.on_command(window, id, code)) return TRUE;
        if (code != BN_CLICKED) return FALSE;
        if (id == IDOK) {
            const dialog_end end = dialog.on_ok ? dialog.on_ok(window) : END_CONFIRMED;
            if (end != KEEP_OPEN) EndDialog(window, end);
            return TRUE;
        }
        if (id == IDCANCEL) {
            if (dialog.on_cancel) dialog.on_cancel(window);
            EndDialog(window, END_UNCONFIRMED);
            return TRUE;
        }
        return FALSE;
    }
    case WM_CLOSE:
        // Through the same path as Cancel, so a dialog that holds its
        // commands back (on_command) holds the close box back too.
        return dialog_message(dialog, window, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED));
    default:
        return FALSE;
    }
}

modal_session::modal_session(module_flag &kind) : kind_(kind.started && !kind.open ? &kind : nullptr) {
    if (kind_) kind_->open = true;
}

modal_session::~modal_session() {
    if (kind_) kind_->open = false;
}

int modal_session::run(int template_id, HWND owner, DLGPROC proc) {
    if (!kind_) return 0;
    INT_PTR result = DialogBoxParamA(editor_instance(), MAKEINTRESOURCEA(template_id), owner, proc, 0);
    return result == END_CONFIRMED ? 1 : 0;
}
