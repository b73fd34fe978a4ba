#include "util/modal.h"

#include <vector>

#include "editor/editor.h"

namespace {
// The dialogs on screen, outermost first: dialogs only nest, so each
// session's dialog is above every dialog opened before it.
struct open_dialog {
    HWND window;
    const dialog_class *dialog;
    bool ended;
};
std::vector<open_dialog> open_dialogs;
}  // namespace

INT_PTR dialog_message(const dialog_class &dialog, HWND window, UINT message, WPARAM wparam) {
    switch (message) {
    case WM_INITDIALOG:
        open_dialogs.push_back({window, &dialog, false});
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
    const size_t depth = open_dialogs.size();
    INT_PTR result = DialogBoxParamA(editor_instance(), MAKEINTRESOURCEA(template_id), owner, proc, 0);
    open_dialogs.resize(depth);
    return result == END_CONFIRMED ? 1 : 0;
}

void end_open_dialogs() {
    for (auto open = open_dialogs.rbegin(); open != open_dialogs.rend(); ++open) {
        if (open->ended) continue;
        open->ended = true;
        if (open->dialog->on_cancel) open->dialog->on_cancel(open->window);
        EndDialog(open->window, END_UNCONFIRMED);
    }
}
