// The shared list: layout, order of operations, and every node from and back
// to the host's allocator with size 12.
#include <vector>

#include "editor/editor.h"
#include "tests/support/test_host.h"
#include "util/dlist.h"

namespace {
class dlist_test : public editor_test {
protected:
    void SetUp() override {
        editor_test::SetUp();
        editor_stored_setup().ops = host.setup().ops;
    }
    static std::vector<uintptr_t> values(const dlist *head) {
        std::vector<uintptr_t> out;
        for (dlist_node *node : dlist_nodes(head)) out.push_back(node->value);
        return out;
    }
    static bool links_consistent(const dlist *head) {
        const dlist_node *node = head;
        do {
            if (node->next->prev != node) return false;
            node = node->next;
        } while (node != head);
        return true;
    }
};

using list = std::vector<uintptr_t>;
}  // namespace

TEST_F(dlist_test, new_list_is_an_empty_head_pointing_at_itself) {
    dlist *head = dlist_create();
    ASSERT_NE(head, nullptr);
    EXPECT_EQ(head->next, head);
    EXPECT_EQ(head->prev, head);
    EXPECT_EQ(head->value, reinterpret_cast<uintptr_t>(head));
    EXPECT_EQ(dlist_count(head), 0u);
    EXPECT_EQ(dlist_last(head), 0u);
    dlist_destroy(head);
}

TEST_F(dlist_test, push_insert_and_walk_keep_insertion_order) {
    dlist *head = dlist_create();
    dlist_node *one = dlist_push_back(head, 1);
    ASSERT_NE(one, nullptr);
    EXPECT_EQ(one->value, 1u);
    dlist_push_back(head, 2);
    dlist_push_back(head, 3);
    dlist_push_front(head, 0);
    EXPECT_EQ(values(head), (list{0, 1, 2, 3}));
    EXPECT_EQ(dlist_last(head), 3u);
    EXPECT_EQ(dlist_count(head), 4u);
    dlist_insert_before(head, 9);  // before the head: at the tail
    dlist_insert_before(one, 7);
    EXPECT_EQ(values(head), (list{0, 7, 1, 2, 3, 9}));
    EXPECT_TRUE(links_consistent(head));
    dlist_destroy(head);
    for (uint32_t size : host.memory.requested_sizes()) EXPECT_EQ(size, 12u);
}

TEST_F(dlist_test, remove_value_takes_only_the_first_match_and_never_the_head) {
    dlist *head = dlist_create();
    for (uintptr_t v : {5, 6, 5, 7}) dlist_push_back(head, v);
    dlist_remove_value(head, 5);
    EXPECT_EQ(values(head), (list{6, 5, 7}));
    dlist_remove_value(head, 42);
    dlist_remove_value(head, reinterpret_cast<uintptr_t>(head));
    EXPECT_EQ(values(head), (list{6, 5, 7}));
    dlist_remove_node(head->next);
    dlist_remove_node(nullptr);
    EXPECT_EQ(values(head), (list{5, 7}));
    EXPECT_TRUE(links_consistent(head));
    dlist_destroy(head);
}

TEST_F(dlist_test, destroy_and_clear_only_act_on_heads) {
    dlist *head = dlist_create();
    dlist_push_back(head, 1);
    dlist_push_back(head, 2);
    dlist_destroy(head->next);  // an ordinary node: nothing happens
    dlist_destroy(nullptr);
    dlist_clear(nullptr);
    EXPECT_EQ(dlist_count(head), 2u);
    EXPECT_EQ(host.memory.live_blocks(), 3u);

    dlist_clear(head);
    EXPECT_EQ(dlist_count(head), 0u);
    EXPECT_EQ(head->value, reinterpret_cast<uintptr_t>(head));
    EXPECT_EQ(host.memory.live_blocks(), 1u);
    dlist_push_back(head, 3);  // a cleared list can be filled again
    EXPECT_EQ(values(head), (list{3}));
    dlist_destroy(head);
    EXPECT_EQ(host.memory.live_blocks(), 0u);
}

TEST_F(dlist_test, splice_moves_every_node_without_allocating) {
    dlist *dest = dlist_create();
    dlist *src = dlist_create();
    dlist_push_back(dest, 1);
    dlist_splice(dest, src);  // empty source: nothing changes
    EXPECT_EQ(values(dest), (list{1}));
    dlist_push_back(src, 2);
    dlist_push_back(src, 3);
    size_t allocations = host.memory.requested_sizes().size();
    dlist_splice(dest, src);
    EXPECT_EQ(host.memory.requested_sizes().size(), allocations);
    EXPECT_EQ(values(dest), (list{1, 2, 3}));
    EXPECT_EQ(dlist_count(src), 0u);
    EXPECT_EQ(src->next, src);
    EXPECT_TRUE(links_consistent(dest));
    EXPECT_TRUE(links_consistent(src));
    dlist_destroy(src);
    dlist_destroy(dest);
}

TEST_F(dlist_test, a_failing_allocator_adds_nothing) {
    dlist *head = dlist_create();
    dlist_push_back(head, 1);
    host.memory.failing = true;
    EXPECT_EQ(dlist_create(), nullptr);
    EXPECT_EQ(dlist_push_back(head, 2), nullptr);
    dlist_push_front(head, 3);
    dlist_insert_before(head->next, 4);
    EXPECT_EQ(values(head), (list{1}));
    EXPECT_TRUE(links_consistent(head));
    host.memory.failing = false;
    dlist_destroy(head);
}

TEST_F(dlist_test, freed_nodes_have_their_value_word_cleared) {
    // The tracker fills freed blocks, so look at the value just before the free.
    dlist *head = dlist_create();
    dlist_push_back(head, 77);
    std::vector<uintptr_t> seen;
    struct spy {
        static int EDITOR_CDECL free_block(void *block, uint32_t size) {
            last_values().push_back(static_cast<dlist_node *>(block)->value);
            return current_host->memory.free(block, size), 0;
        }
        static std::vector<uintptr_t> &last_values() {
            static std::vector<uintptr_t> v;
            return v;
        }
    };
    spy::last_values().clear();
    editor_stored_setup().ops.host_free = spy::free_block;
    dlist_destroy(head);
    EXPECT_EQ(spy::last_values(), (list{0, 0}));
}
