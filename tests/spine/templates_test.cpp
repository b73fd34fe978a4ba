// Every dialog template in the module as a host reads it: hosts expect the
// platform's predefined control classes as ordinals (0x80 button and so on),
// not as names. (Sorting and selection styles show in the dialogs' tests.)
#include <map>
#include <vector>

#include "editor/editor.h"
#include "resources/ground_ids.h"
#include "resources/placement_ids.h"
#include "resources/window_ids.h"
#include "tests/support/editor_test.h"

namespace {
struct control {
    int id;
    WORD class_ordinal;  // 0 when the class is stored as a name
};
using templates = std::map<int, std::vector<control>>;

// Skips a name-or-ordinal field (or a string).
const WORD *skip_field(const WORD *p) {
    if (*p == 0xFFFF) return p + 2;
    while (*p) ++p;
    return p + 1;
}

// Reads a plain or an extended template's controls.
std::vector<control> read_controls(const BYTE *base) {
    const auto *p = reinterpret_cast<const WORD *>(base);
    const bool extended = p[1] == 0xFFFF;
    const DWORD style = extended ? *reinterpret_cast<const DWORD *>(p + 6) : *reinterpret_cast<const DWORD *>(p);
    const int count = extended ? p[8] : p[4];
    p = skip_field(skip_field(skip_field(p + (extended ? 13 : 9))));  // menu, class, title
    if (style & DS_SETFONT) p = skip_field(p + (extended ? 3 : 1));   // size (weight, italic, charset), face
    std::vector<control> controls;
    for (int i = 0; i < count; ++i) {
        p = reinterpret_cast<const WORD *>(base + ((reinterpret_cast<const BYTE *>(p) - base + 3) & ~3));
        const int id = extended ? *reinterpret_cast<const int32_t *>(p + 10) : static_cast<short>(p[8]);
        p += extended ? 12 : 9;
        controls.push_back({id, WORD(*p == 0xFFFF ? p[1] : 0)});
        p = skip_field(skip_field(p));  // class, caption
        p = reinterpret_cast<const WORD *>(reinterpret_cast<const BYTE *>(p + 1) + *p);
    }
    return controls;
}

BOOL CALLBACK add_template(HMODULE module, LPCSTR, LPSTR name, LONG_PTR out) {
    HRSRC found = FindResourceA(module, name, MAKEINTRESOURCEA(5));
    const auto *base = static_cast<const BYTE *>(LockResource(LoadResource(module, found)));
    (*reinterpret_cast<templates *>(out))[int(reinterpret_cast<uintptr_t>(name))] = read_controls(base);
    return TRUE;
}
}  // namespace

TEST(templates, every_control_names_its_class_by_ordinal) {
    templates all;
    EnumResourceNamesA(editor_instance(), MAKEINTRESOURCEA(5), add_template, reinterpret_cast<LONG_PTR>(&all));
    for (int id : {IDD_TOOLBAR, IDD_STATUS, IDD_CREATE_OBJECTS, IDD_GROUP_COMPOSITION, IDD_ORDERS, IDD_GROUP_LIST,
                   IDD_GROUP_ORDERS, IDD_SARGE_ORDER, IDD_CONTINGENCY, IDD_OBJECT_NAMES, IDD_EDIT_NAME})
        EXPECT_FALSE(all[id].empty()) << "template " << id;
    for (const auto &t : all)
        for (const control &c : t.second) EXPECT_GE(c.class_ordinal, 0x80) << "template " << t.first << " control " << c.id;
}
