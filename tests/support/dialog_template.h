// A dialog template as a host reads it from the module's resources: the
// title, size and frame style, and each control's id, style, rectangle and
// whether its class is stored as a predefined ordinal.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <windows.h>

#include "editor/editor.h"

struct template_control {
    DWORD style;
    int id;
    bool class_ordinal;  // a predefined class stored as its ordinal, as hosts expect
    int x, y, cx, cy;    // dialog units
};
struct dialog_template {
    DWORD style = 0;
    std::string title;
    int cx = 0, cy = 0;
    std::vector<template_control> controls;
};

// Skips a name-or-ordinal field; with `text`, keeps a string's characters.
inline const WORD *skip_template_field(const WORD *p, std::string *text = nullptr) {
    if (*p == 0xFFFF) return p + 2;
    for (; *p; ++p)
        if (text) text->push_back(static_cast<char>(*p));
    return p + 1;
}

// A plain (not extended) dialog template.
inline dialog_template read_template(int id) {
    dialog_template t;
    HRSRC found = FindResourceA(editor_instance(), MAKEINTRESOURCEA(id), MAKEINTRESOURCEA(5));
    if (!found) return t;
    const auto *head = static_cast<const DLGTEMPLATE *>(LockResource(LoadResource(editor_instance(), found)));
    t.style = head->style;
    t.cx = head->cx;
    t.cy = head->cy;
    const WORD *p = skip_template_field(skip_template_field(reinterpret_cast<const WORD *>(head + 1)));  // menu, class
    p = skip_template_field(p, &t.title);
    if (t.style & DS_SETFONT) p = skip_template_field(p + 1);
    for (int i = 0; i < head->cdit; ++i) {
        p = reinterpret_cast<const WORD *>((reinterpret_cast<uintptr_t>(p) + 3) & ~uintptr_t{3});
        const auto *item = reinterpret_cast<const DLGITEMTEMPLATE *>(p);
        t.controls.push_back({item->style, static_cast<short>(item->id),
                              *reinterpret_cast<const WORD *>(item + 1) == 0xFFFF,
                              item->x, item->y, item->cx, item->cy});
        p = skip_template_field(skip_template_field(reinterpret_cast<const WORD *>(item + 1)));  // class, caption
        p = reinterpret_cast<const WORD *>(reinterpret_cast<const BYTE *>(p + 1) + *p);
    }
    return t;
}

inline DWORD style_of(const dialog_template &t, int id) {
    for (const template_control &c : t.controls)
        if (c.id == id) return c.style;
    ADD_FAILURE() << "no control " << id;
    return 0;
}
