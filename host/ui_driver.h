// Drives the modal windows of this thread from inside their own message
// loops: a thread timer finds the window each step waits for and acts on it
// (sets texts, selects items, posts clicks). Every wait has a deadline; a
// step that times out, or a window nobody scripted that stays up, is
// recorded as a failure and the thread's dialogs are closed, so a stuck
// dialog fails a test instead of hanging it.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include <windows.h>

class ui_driver {
public:
    using action = std::function<void(HWND window)>;

    explicit ui_driver(unsigned step_timeout_ms = 8000);
    ~ui_driver();
    ui_driver(const ui_driver &) = delete;
    ui_driver &operator=(const ui_driver &) = delete;

    // Waits until a visible, enabled top-level window of this thread has the
    // title `title`, then runs `act` on it. Steps run in order.
    ui_driver &then(const std::string &title, action act);

    // A message box with this title: records its text into *text (if given)
    // and answers it with the button `answer` (IDOK, IDYES, IDNO).
    ui_driver &answer_box(const std::string &title, int answer, std::string *text = nullptr);

    // True when every step ran and nothing went wrong.
    bool ok() const { return steps_.empty() && failures_.empty(); }
    // What went wrong, one line each, including steps that never ran.
    std::string failures() const;

    // Closes every dialog and message box of this thread (used after a failure).
    static void close_all_dialogs();

private:
    struct step {
        std::string title;
        action act;
    };
    static void CALLBACK on_timer(HWND, UINT, UINT_PTR, DWORD);
    void tick();

    std::deque<step> steps_;
    std::vector<std::string> failures_;
    unsigned step_timeout_ms_;
    DWORD step_started_ = 0;
    DWORD stray_seen_ = 0;
    HWND stray_ = nullptr;
    UINT_PTR timer_ = 0;
    bool closing_ = false;
    bool busy_ = false;
};

// --- Acting on a dialog's controls ------------------------------------------------
void ui_set_text(HWND dialog, int id, const std::string &text);
std::string ui_text(HWND dialog, int id);
std::string ui_window_text(HWND window);
// Posts a button click (BM_CLICK): check boxes and radio buttons change state.
void ui_click(HWND dialog, int id);
// Posts WM_COMMAND with BN_CLICKED for a button id (IDOK, IDCANCEL, ...).
void ui_command(HWND dialog, int id);
bool ui_enabled(HWND dialog, int id);
bool ui_visible(HWND dialog, int id);
bool ui_checked(HWND dialog, int id);
// Selects the combo item with exactly this text (or index) and tells the dialog.
bool ui_combo_select(HWND dialog, int id, const std::string &text);
void ui_combo_select_index(HWND dialog, int id, int index);
std::vector<std::string> ui_combo_items(HWND dialog, int id);
std::string ui_combo_selected(HWND dialog, int id);
// List boxes: items, selection by text (adds to a multiple selection), index.
std::vector<std::string> ui_list_items(HWND dialog, int id);
bool ui_list_select(HWND dialog, int id, const std::string &text);
void ui_list_select_index(HWND dialog, int id, int index);
std::vector<int> ui_list_selected(HWND dialog, int id);
// Posts a double click notification for a list box.
void ui_list_double_click(HWND dialog, int id);
// The text of a message box (its longest static text).
std::string ui_message_text(HWND box);
// Every visible top-level window of this thread, topmost first.
std::vector<HWND> ui_thread_windows();
