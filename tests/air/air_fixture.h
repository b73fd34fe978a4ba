// Shared set-up of the air support tests: a started editor, routes and ARSP
// lists in host memory (freed with their entries, at their sizes, at the end
// of each test), and records and entries compared as raw bytes.
#pragma once

#include <cstring>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "editor/editor.h"
#include "resources/air_ids.h"
#include "tests/support/test_host.h"

// Untouched host bytes read as this (the test allocator's fill).
constexpr unsigned char host_fill = 0xCD;

template <class T>
std::string bytes_of(const T &record) {
    return std::string(reinterpret_cast<const char *>(&record), sizeof record);
}

// A waypoint as the host or the editor leaves it: the name and its
// terminator over the allocator's fill, and the height.
inline bombing_waypoint waypoint(const char *name, float height) {
    bombing_waypoint w;
    std::memset(&w, host_fill, sizeof w);
    std::memcpy(w.name, name, std::strlen(name) + 1);
    w.height = height;
    return w;
}

// Runs `open` while `steps` act in turn on the window titled `title`; every
// step must run. Answers what `open` answered.
template <class Open>
int drive(const char *title, std::initializer_list<ui_driver::action> steps, Open open) {
    ui_driver d;
    for (const ui_driver::action &step : steps) d.then(title, step);
    const int result = open();
    EXPECT_DRIVER_OK(d);
    return result;
}

class air_test : public editor_test {
protected:
    std::vector<std::pair<dlist_node *, uint32_t>> lists;  // with the size of their entries; 0: not ours

    void SetUp() override {
        editor_test::SetUp();
        ASSERT_EQ(start_editor(), 1);
    }
    void TearDown() override {
        ui_driver::close_all_dialogs();
        for (auto &list : lists) {
            for (dlist_node *n = list.first->next; n != list.first; n = n->next)
                if (list.second && n->value) host.memory.free(reinterpret_cast<void *>(n->value), list.second);
            host.free_list(list.first);
        }
        editor_test::TearDown();
    }

    // A list in host memory holding copies of `entries`.
    template <class T>
    dlist_node *list_of(const std::vector<T> &entries) {
        std::vector<uintptr_t> values;
        for (const T &e : entries) {
            void *copy = host.memory.alloc(sizeof e);
            std::memcpy(copy, &e, sizeof e);
            values.push_back(reinterpret_cast<uintptr_t>(copy));
        }
        lists.push_back({host.build_list(values), sizeof(T)});
        return lists.back().first;
    }
    dlist_node *names_of(const std::vector<std::string> &names) {
        std::vector<uintptr_t> values;
        for (const std::string &name : names) values.push_back(reinterpret_cast<uintptr_t>(host.host_text(name)));
        lists.push_back({host.build_list(values), 0});
        return lists.back().first;
    }

    // The entries of a list, each as its raw bytes.
    template <class T>
    static std::vector<std::string> entries_of(const dlist_node *list) {
        std::vector<std::string> out;
        for (dlist_node *n = list->next; n != list; n = n->next)
            out.push_back(bytes_of(*reinterpret_cast<const T *>(n->value)));
        return out;
    }
    template <class T>
    static std::vector<std::string> entries(std::initializer_list<T> expected) {
        std::vector<std::string> out;
        for (const T &e : expected) out.push_back(bytes_of(e));
        return out;
    }

    // Every block the host handed out was a list node, or an entry of `size`.
    void expect_only_sizes(uint32_t size) {
        for (uint32_t asked : host.memory.requested_sizes()) EXPECT_TRUE(asked == 12 || asked == size) << asked;
    }
};
