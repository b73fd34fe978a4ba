// The load hook: remembers which module holds our resources.
#include "editor/editor.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) editor_set_instance(instance);
    else if (reason == DLL_PROCESS_DETACH) editor_set_instance(nullptr);
    return TRUE;
}
