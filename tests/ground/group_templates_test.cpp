// The ground group templates as a host reads them from the module's
// resources: titles, sizes, frame styles, and the style bits each control's
// role calls for (sorting, selection kind, notifications, default button...).
#include <string>
#include <vector>

#include "tests/ground/group_fixture.h"

namespace {
struct template_control {
    DWORD style;
    int id;
    bool class_ordinal;  // a predefined class stored as its ordinal, as hosts expect
};
struct dialog_template {
    DWORD style = 0;
    std::string title;
    int cx = 0, cy = 0;
    std::vector<template_control> controls;
};

// Skips a name-or-ordinal field; with `text`, keeps a string's characters.
const WORD *skip_field(const WORD *p, std::string *text = nullptr) {
    if (*p == 0xFFFF) return p + 2;
    for (; *p; ++p)
        if (text) text->push_back(static_cast<char>(*p));
    return p + 1;
}

// A plain (not extended) dialog template.
dialog_template read_template(int id) {
    dialog_template t;
    HRSRC found = FindResourceA(editor_instance(), MAKEINTRESOURCEA(id), MAKEINTRESOURCEA(5));
    if (!found) return t;
    const auto *head = static_cast<const DLGTEMPLATE *>(LockResource(LoadResource(editor_instance(), found)));
    t.style = head->style;
    t.cx = head->cx;
    t.cy = head->cy;
    const WORD *p = skip_field(skip_field(reinterpret_cast<const WORD *>(head + 1)));  // menu, class
    p = skip_field(p, &t.title);
    if (t.style & DS_SETFONT) p = skip_field(p + 1);
    for (int i = 0; i < head->cdit; ++i) {
        p = reinterpret_cast<const WORD *>((reinterpret_cast<uintptr_t>(p) + 3) & ~uintptr_t{3});
        const auto *item = reinterpret_cast<const DLGITEMTEMPLATE *>(p);
        t.controls.push_back({item->style, static_cast<short>(item->id),
                              *reinterpret_cast<const WORD *>(item + 1) == 0xFFFF});
        p = skip_field(skip_field(reinterpret_cast<const WORD *>(item + 1)));  // class, caption
        p = reinterpret_cast<const WORD *>(reinterpret_cast<const BYTE *>(p + 1) + *p);
    }
    return t;
}

DWORD style_of(const dialog_template &t, int id) {
    for (const template_control &c : t.controls)
        if (c.id == id) return c.style;
    ADD_FAILURE() << "no control " << id;
    return 0;
}

constexpr DWORD LIST_ROLE = LBS_SORT | LBS_NOTIFY | LBS_EXTENDEDSEL | LBS_MULTIPLESEL;
constexpr DWORD BUTTON_ROLE = BS_TYPEMASK | BS_LEFTTEXT;
constexpr DWORD COMBO_ROLE = CBS_DROPDOWNLIST | CBS_SORT;
constexpr DWORD MODAL = DS_MODALFRAME | WS_POPUP | WS_CAPTION | WS_SYSMENU;
constexpr DWORD UNIT_LIST = LBS_SORT | LBS_EXTENDEDSEL | LBS_NOTIFY;
}  // namespace

TEST(group_templates, titles_sizes_and_control_roles) {
    struct expected {
        int dialog;
        const char *title;
        int cx, cy;
        std::vector<std::pair<int, DWORD>> list_boxes;  // id, LIST_ROLE bits
        bool ok_is_default;
    };
    const expected dialogs[] = {
        {127, "Dialog", 457, 237, {{1036, UNIT_LIST}, {1034, UNIT_LIST}}, true},
        {129, "Orders", 105, 167, {{1054, LBS_SORT | LBS_NOTIFY}}, true},
        {133, "Group List", 212, 276, {{1076, LBS_SORT | LBS_NOTIFY}}, false},
        {135, "Dialog", 462, 241, {{1039, 0}, {1079, 0}}, true},
    };
    for (const expected &e : dialogs) {
        SCOPED_TRACE(e.dialog);
        dialog_template t = read_template(e.dialog);
        EXPECT_EQ(t.title, e.title);
        EXPECT_EQ(std::make_pair(t.cx, t.cy), std::make_pair(e.cx, e.cy));
        EXPECT_EQ(t.style & MODAL, MODAL);
        for (const auto &list : e.list_boxes) EXPECT_EQ(style_of(t, list.first) & LIST_ROLE, list.second) << list.first;
        EXPECT_EQ(style_of(t, IDOK) & BS_TYPEMASK, DWORD(e.ok_is_default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON));
        EXPECT_EQ(style_of(t, IDCANCEL) & BS_TYPEMASK, DWORD(BS_PUSHBUTTON));
    }
    dialog_template composition = read_template(127);
    EXPECT_EQ(style_of(composition, 1081) & COMBO_ROLE, DWORD(CBS_DROPDOWN));
    for (int radio : {1096, 1097})
        EXPECT_EQ(style_of(composition, radio) & BUTTON_ROLE, DWORD(BS_AUTORADIOBUTTON | BS_LEFTTEXT));
    EXPECT_EQ(style_of(composition, 1198) & BUTTON_ROLE, DWORD(BS_AUTOCHECKBOX | BS_LEFTTEXT));
    EXPECT_EQ(composition.controls.size(), 24u);
    for (int dialog : {127, 129, 130, 131, 132, 133, 135, 136})
        for (const template_control &c : read_template(dialog).controls)
            EXPECT_TRUE(c.class_ordinal) << dialog << " control " << c.id;
}
