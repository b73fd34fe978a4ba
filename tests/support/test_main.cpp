// Test programs link the editor's code and resources directly; the resources
// are in the program itself.
#include <gtest/gtest.h>

#include "editor/editor.h"

int main(int argc, char **argv) {
    editor_set_instance(GetModuleHandleA(nullptr));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
