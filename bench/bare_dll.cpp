// The floor of editor_init and editor_tidyup: a DLL that does only what a
// module with a toolbar and a Status window cannot avoid, creating the two
// modeless windows from the same two templates and destroying them again.
#include <windows.h>

#include "resources/window_ids.h"

namespace {
HINSTANCE instance = nullptr;
HWND toolbar = nullptr;
HWND status = nullptr;

INT_PTR CALLBACK bare_proc(HWND, UINT message, WPARAM, LPARAM) { return message == WM_INITDIALOG; }
}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) instance = module;
    return TRUE;
}

extern "C" __declspec(dllexport) int bare_init(HWND owner) {
    toolbar = CreateDialogParamA(instance, MAKEINTRESOURCEA(IDD_TOOLBAR), owner, bare_proc, 0);
    status = CreateDialogParamA(instance, MAKEINTRESOURCEA(IDD_STATUS), owner, bare_proc, 0);
    ShowWindow(toolbar, SW_SHOWNORMAL);
    ShowWindow(status, SW_SHOWNORMAL);
    return toolbar && status;
}

extern "C" __declspec(dllexport) int bare_tidyup() {
    DestroyWindow(toolbar);
    DestroyWindow(status);
    toolbar = status = nullptr;
    return 1;
}
