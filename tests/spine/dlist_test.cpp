// The shared list: layout, order of operations, and every node from and back
// to the host's allocator with size 12.
#include <vector>

#include "editor/editor.h"
#include "tests/support/editor_test.h"
#include "util/dlist.h"

namespace {
using list = std::vector<uintptr_t>;

// The tracker fills freed blocks, so the value is read just before the free.
list freed_values;
int EDITOR_CDECL note_and_free(void *block, uint32_t size) {
    freed_values.push_back(static_cast<dlist_node *>(block)->value);
    current_host->memory.free(block, size);
    return 0;
}

class dlist_test : public editor_test {
protected:
    dlist *head = nullptr;
    void SetUp() override {
        editor_test::SetUp();
        editor_stored_setup().ops = host.setup().ops;
        head = dlist_create();
    }
    void TearDown() override {
        dlist_destroy(head);
        editor_test::TearDown();
    }
    // The values front to back, once the links both ways are checked.
    list values() const {
        list out;
        for (const dlist_node *node = head; node->next != head; node = node->next) {
            EXPECT_EQ(node->next->prev, node);
            out.push_back(node->next->value);
        }
        EXPECT_EQ(head->prev->next, head);
        EXPECT_EQ(dlist_count(head), out.size());
        return out;
    }
};
}  // namespace

TEST_F(dlist_test, push_insert_remove_and_walk_keep_their_order) {
    ASSERT_NE(head, nullptr);
    EXPECT_TRUE(head->next == head && head->prev == head && head->value == reinterpret_cast<uintptr_t>(head));
    EXPECT_EQ(dlist_last(head), 0u);
    dlist_node *one = dlist_push_back(head, 1);
    ASSERT_NE(one, nullptr);
    EXPECT_EQ(one->value, 1u);
    dlist_push_back(head, 5);
    dlist_push_back(head, 3);
    dlist_push_front(head, 5);
    dlist_insert_before(head, 9);  // before the head: at the tail
    dlist_insert_before(one, 7);
    EXPECT_EQ(values(), (list{5, 7, 1, 5, 3, 9}));
    EXPECT_EQ(dlist_last(head), 9u);
    dlist_remove_value(head, 5);  // the first match only
    dlist_remove_value(head, 42);
    dlist_remove_value(head, reinterpret_cast<uintptr_t>(head));  // never the head
    dlist_remove_node(head->next);
    dlist_remove_node(nullptr);
    EXPECT_EQ(values(), (list{1, 5, 3, 9}));
    for (uint32_t size : host.memory.requested_sizes()) EXPECT_EQ(size, 12u);
}

TEST_F(dlist_test, destroy_and_clear_act_only_on_heads_and_splice_allocates_nothing) {
    dlist_push_back(head, 1);
    dlist_push_back(head, 2);
    dlist_destroy(head->next);  // an ordinary node: nothing happens
    dlist_destroy(nullptr);
    dlist_clear(nullptr);
    EXPECT_EQ(host.memory.live_blocks(), 3u);
    dlist_clear(head);
    EXPECT_EQ(values(), list{});
    EXPECT_EQ(head->value, reinterpret_cast<uintptr_t>(head));
    EXPECT_EQ(host.memory.live_blocks(), 1u);

    dlist *src = dlist_create();
    dlist_push_back(head, 1);
    dlist_splice(head, src);  // empty source: nothing changes
    dlist_push_back(src, 2);
    dlist_push_back(src, 3);
    size_t allocations = host.memory.requested_sizes().size();
    dlist_splice(head, src);
    EXPECT_EQ(host.memory.requested_sizes().size(), allocations);
    EXPECT_EQ(values(), (list{1, 2, 3}));
    EXPECT_TRUE(src->next == src && src->prev == src);
    dlist_destroy(src);
}

TEST_F(dlist_test, a_failing_allocator_adds_nothing_and_freed_nodes_have_their_value_cleared) {
    dlist_push_back(head, 1);
    host.memory.failing = true;
    EXPECT_EQ(dlist_create(), nullptr);
    EXPECT_EQ(dlist_push_back(head, 2), nullptr);
    dlist_push_front(head, 3);
    dlist_insert_before(head->next, 4);
    EXPECT_EQ(values(), (list{1}));
    host.memory.failing = false;
    editor_stored_setup().ops.host_free = note_and_free;
    dlist_destroy(head);
    head = nullptr;
    EXPECT_EQ(freed_values, (list{0, 0}));
}
