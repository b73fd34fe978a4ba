// Helicopter orders: the entry that opens the dialog of an order's kind, and
// the rules all six order dialogs share (names, duplicates, existence).
#pragma once

#include <cstring>

#include <windows.h>

#include "editor_api.h"
#include "util/controls.h"
#include "util/dlist.h"

// Opens the modal dialog of the order's kind, owned by `owner`, on the
// record's body (or list head). 1 when it ended with OK; 0 on Cancel, for a
// null record, a kind above 5, or a kind whose dialog cannot open.
//
// An order dialog writes its scalar fields on OK only, but its list edits
// (Deploy, Pickup, Patrol) take effect at once and Cancel does not undo them;
// so every caller edits a fresh record (host_order_create) or a copy
// (host_order_copy), and on OK puts the copy in the original's place.
int edit_heli_order(HWND owner, heli_order_record *order);

// The string-table label of an order kind, or 0 for a kind above 5.
int heli_order_label(uint32_t kind);

// A fixed-size name field equals `name` as a whole string, byte by byte
// within the field (which may lack its terminator).
template <size_t N>
bool field_equals(const char (&field)[N], const char *name) {
    return strnlen(field, N) == std::strlen(name) && std::strncmp(field, name, N) == 0;
}

// The first entry of a Deploy or Pickup list whose name equals `name`; null
// when none does.
template <class T>
T *entry_named(const dlist *list, const char *name) {
    for (T *entry : dlist_values<T>(list)) {
        if (entry && field_equals(entry->name, name)) return entry;
    }
    return nullptr;
}

// The duplicate refusal: an error box "Object <name> already on list".
void report_already_on_list(const char *name);

// The existence check: when the host knows no object of this name, asks
// "Object <name> does not exist" (Yes/No). True to go on (the host knows the
// name, or the designer answered Yes), false when the designer answered No.
bool check_object_name(const char *name);

// Whether `name` may go into a Deploy or Pickup list as the name of `self`
// (null for a new entry): refused with the duplicate box when the first entry
// holding it is another one; then the existence check, skipped when the name
// is self's present one.
template <class T>
bool accept_entry_name(const dlist *list, const char *name, const T *self) {
    const T *holder = entry_named<T>(list, name);
    if (holder && holder != self) {
        report_already_on_list(name);
        return false;
    }
    if (self && field_equals(self->name, name)) return true;
    return check_object_name(name);
}

// Numbers as every order dialog shows them: "%6.1f".
void show_number(HWND dialog, int id, float value);
