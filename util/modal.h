// How every modal dialog of the editor runs. A dialog module supplies only
// what differs (its opening, its own commands, its commit); OK, Cancel and
// the close box, the refusal of a second dialog of the same kind and the
// one call into the platform are here.
//
//   int edit_thing(HWND owner, thing *record) {
//       modal_session session(module);   // refuses: not started, or already open
//       if (!session || !record) return 0;
//       edited = record;                 // state is set only once the checks passed
//       return session.run(IDD_THING, owner, dialog_proc<thing_dialog>);
//   }
#pragma once

#include <windows.h>

#include "util/module_flag.h"

// What on_ok answers: end the dialog with 1 or 0, or keep it open (a
// refused value, or a commit that could not be made whole).
enum dialog_end : int { KEEP_OPEN = -1, END_UNCONFIRMED = 0, END_CONFIRMED = 1 };

// The parts of a dialog procedure that differ from dialog to dialog. Every
// member but on_init may be null.
struct dialog_class {
    // WM_INITDIALOG: fill the controls, centre and show.
    void (*on_init)(HWND dialog);
    // Every WM_COMMAND, OK's and Cancel's included, before the shared
    // handling; true when the dialog dealt with it. Each dialog filters the
    // notification codes its controls act on.
    bool (*on_command)(HWND dialog, int id, int code);
    // OK clicked: commit. Null ends the dialog with 1.
    dialog_end (*on_ok)(HWND dialog);
    // Cancel clicked, or the close box: anything to note before the dialog
    // ends with 0 (working copies are freed by the opening function).
    void (*on_cancel)(HWND dialog);
    // What WM_INITDIALOG answers: TRUE lets the platform put the focus on
    // the first control that takes it.
    BOOL init_result;
};

// The shared procedure: WM_INITDIALOG to on_init; WM_COMMAND to on_command,
// then OK (on_ok) and Cancel clicks; WM_CLOSE as Cancel. Everything else is
// left to the platform.
INT_PTR dialog_message(const dialog_class &dialog, HWND window, UINT message, WPARAM wparam);

template <const dialog_class &Dialog>
INT_PTR CALLBACK dialog_proc(HWND window, UINT message, WPARAM wparam, LPARAM) {
    return dialog_message(Dialog, window, message, wparam);
}

// One opening of a dialog kind. Claims the kind for its lifetime when the
// module is started and no dialog of the kind is open; converts to false
// when it could not.
class modal_session {
public:
    explicit modal_session(module_flag &kind);
    ~modal_session();
    modal_session(const modal_session &) = delete;
    modal_session &operator=(const modal_session &) = delete;
    explicit operator bool() const { return kind_ != nullptr; }

    // Runs the dialog from its template in the module's resources; 1 when it
    // ended with 1 (the designer confirmed), else 0.
    int run(int template_id, HWND owner, DLGPROC proc);

private:
    module_flag *kind_;
};

// Ends every dialog that is open, the innermost first, the way Cancel ends
// it (its on_cancel, then the end with 0), whatever its own commands would
// say: the editor is shutting down under them. Each opening function then
// returns 0 and frees its working copies as its dialog unwinds.
void end_open_dialogs();
