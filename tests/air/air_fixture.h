// Air support tests: a started editor, routes and ARSP lists held by the
// host (freed with their entries at the end of each test, so an entry the
// editor allocated with another size shows up), records and entries compared
// as raw bytes.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "editor/editor.h"
#include "resources/air_ids.h"
#include "tests/support/steps.h"
#include "util/dlist.h"

using lines = std::vector<std::string>;

template <class T>
std::string bytes_of(std::initializer_list<T> records) {
    std::string all;
    for (const T &r : records) all.append(reinterpret_cast<const char *>(&r), sizeof r);
    return all;
}

// Name and terminator over the allocator's fill (the host's bytes untouched), and the height.
inline bombing_waypoint waypoint(const char *name, float height) {
    bombing_waypoint w;
    std::memset(&w, 0xCD, sizeof w);
    std::memcpy(w.name, name, std::strlen(name) + 1);
    w.height = height;
    return w;
}

class air_test : public editor_test {
protected:
    void SetUp() override {
        editor_test::SetUp();
        ASSERT_EQ(start_editor(), 1);
    }
    template <class T>
    static std::string entries_of(const dlist_node *list) {
        std::string all;
        for (T *entry : dlist_values<T>(list)) all += bytes_of({*entry});
        return all;
    }
    // No dialog and no mark for a null record, nor while the module or the editor is stopped.
    template <class R>
    void expect_refused(int request, int (*open)(R *), int (*stop)(), int (*start)(), R &record) {
        record.cancelled = 7;
        EXPECT_EQ(editor_window(request, 0, 0), 0);
        EXPECT_EQ(stop(), 1);
        EXPECT_EQ(open(&record), 0);
        EXPECT_EQ(start(), 1);
        editor_tidyup();
        EXPECT_EQ(open(&record), 0);
        EXPECT_EQ(record.cancelled, 7u);
    }
};
