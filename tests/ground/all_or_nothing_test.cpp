// Copies and commits are all or nothing. One editing flow runs again and
// again with the host out of memory from its k-th allocation on, for k = 1,
// 2, ... until a run finishes before reaching the k-th. A working copy that
// cannot be made opens no dialog; a commit that cannot be made keeps its
// dialog open and changes nothing, not even what a later commit stores.
// Whatever k, nothing leaks, every host list goes back, no message box
// appears, and the host's group ends byte for byte as one of three wholes.
#include <map>

#include "tests/ground/group_fixture.h"

namespace {
// The editor's allocations, counted; from the fail_from-th on (0: never) they fail.
int allocations = 0, fail_from = 0;
void *EDITOR_CDECL scarce_alloc(uint32_t size) {
    ++allocations;
    return fail_from > 0 && allocations >= fail_from ? nullptr : current_host->memory.alloc(size);
}

// The record (its member list pointer left out) and the bytes of every member.
std::string snapshot(const group_record &g) {
    group_record record = g;
    record.members = nullptr;
    std::string bytes(reinterpret_cast<const char *>(&record), sizeof record);
    for (unit_entry *u : dlist_values<unit_entry>(g.members)) bytes.append(reinterpret_cast<const char *>(u), sizeof *u);
    return bytes;
}

struct step {
    const char *dialog, *name;
    ui_driver::action act;
    const char *after_failure = nullptr;  // what must come next when the k-th allocation falls in this step
};
const step flow[] = {
    {"composition", "Edit Orders", [](HWND d) {
         ui_command(d, IDC_GC_PLUS);
         ui_click(d, IDC_GC_TARGET_PLAYER);
         ui_command(d, IDC_GC_EDIT_ORDERS);
     }, "composition: Add->"},  // no whole copy: Group Orders does not open
    {"group orders", "Edit", [](HWND d) { ui_list_select_index(d, IDC_GO_ORDERS, 0); ui_command(d, IDC_GO_EDIT); }},
    {"Sarge Order", "rename", [](HWND d) { ui_set_text(d, IDC_ORDER_NAME, "Dig in"); press_ok(d); }},
    {"group orders", "Add", click(IDC_GO_ADD)},
    {"Orders", "OK", press_ok},
    {"Sarge Order", "name", [](HWND d) { ui_set_text(d, IDC_ORDER_NAME, "Go"); press_ok(d); }},
    {"group orders", "OK", press_ok, "group orders: Cancel"},  // a commit not made keeps its dialog open
    {"composition", "Add->", [](HWND d) { ui_list_select(d, IDC_GC_AVAILABLE, "Mortar2 (mortar)"); ui_command(d, IDC_GC_ADD); }},
    {"composition", "OK", press_ok, "composition: Cancel"},
};

// One run: plays the flow on whichever dialog is up, each kind taking its
// own next step; a dialog with no step left (or skipped) is cancelled, which
// gives the memory back so that the flow goes on; anything else is closed as
// unexpected. Logs what it did, with the allocation count before each.
struct run {
    int result = 0;
    std::string before, after;  // snapshots of the group
    lines log;
    std::vector<int> allocations_before;  // of each logged step, then the run's total
    std::map<std::string, size_t> taken;
    static run *playing;

    static void CALLBACK tick(HWND, UINT, UINT_PTR, DWORD) {
        for (HWND w : ui_thread_windows())
            if (IsWindowEnabled(w) && !is_editor_window(w) && w != editor_main_window()) return playing->visit(w);
    }
    void visit(HWND dialog) {
        std::string kind = ui_window_text(dialog);
        if (kind == "Dialog") kind = GetDlgItem(dialog, IDC_GC_EDIT_ORDERS) ? "composition" : "group orders";
        allocations_before.push_back(allocations);
        size_t n = taken[kind]++;
        for (const step &s : flow) {
            if (kind == s.dialog && n-- == 0) {
                log.push_back(kind + ": " + s.name);
                return s.act(dialog);
            }
        }
        if (!std::any_of(std::begin(flow), std::end(flow), [&](const step &s) { return kind == s.dialog; })) {
            log.push_back("unexpected window '" + kind + "'");
            EndDialog(dialog, IDCANCEL);
        } else if (log.size() < 40) {
            log.push_back(kind + ": Cancel");
            fail_from = 0;
            press_cancel(dialog);
        }
    }
};
run *run::playing = nullptr;
}  // namespace

TEST_F(group_test, every_failed_allocation_leaves_the_group_whole_and_nothing_behind) {
    editor_stored_setup().ops.host_alloc = scarce_alloc;
    // A fresh group each time, the flow failing from allocation k on.
    auto play = [&](int k, const char *skipped = "") {
        group_record *g = add_group("sarge0", {1, 2});
        g->orders[g->order_count++] = order(SARGE_ORDER_HALT, "Wait");
        g->contingencies[g->contingency_count++] = contingency(TRIGGER_UNDER_FIRE, "Duck");
        run out;
        out.before = snapshot(*g);
        out.taken[skipped] = std::size(flow);
        allocations = 0;
        fail_from = k;
        run::playing = &out;
        UINT_PTR timer = SetTimer(nullptr, 0, 10, run::tick);
        out.result = editor_window(REQUEST_GROUP_COMPOSITION, arg(g), groups_arg());
        KillTimer(nullptr, timer);
        out.allocations_before.push_back(allocations);
        out.after = snapshot(*g);
        host.free_group_list(groups);
        groups = nullptr;
        EXPECT_EQ(host.lists_out, 0);
        EXPECT_TRUE(host.memory.problems().empty()) << host.memory.report();
        host.memory.reset();
        for (const std::string &done : out.log) EXPECT_EQ(done.find("unexpected"), std::string::npos) << done;
        return out;
    };
    // The clean run plays every step once, in order, and stores every level's edits.
    const run clean = play(0);
    lines steps;
    for (const step &s : flow) steps.push_back(std::string(s.dialog) + ": " + s.name);
    ASSERT_EQ(clean.log, steps);
    ASSERT_EQ(clean.result, 1);
    group_record stored;
    unit_entry first_member;
    std::memcpy(&stored, clean.after.data(), sizeof stored);
    std::memcpy(&first_member, clean.after.data() + sizeof stored, sizeof first_member);
    EXPECT_EQ(clean.after.size(), sizeof stored + 3 * sizeof first_member);
    EXPECT_EQ(first_member.id, 5);  // Mortar2, in front of the two members
    EXPECT_TRUE(stored.appearance == 10 && stored.target_player_only == 1 && stored.order_count == 2);
    EXPECT_STREQ(stored.orders[0].name, "Dig in");
    EXPECT_EQ(stored.orders[1].type, SARGE_ORDER_ADVANCE);  // OK without a choice of type
    EXPECT_EQ(std::string(stored.orders[1].name) + stored.orders[1].formation + stored.orders[1].destination, "GoColumnWP1");
    // The group as it ends when Group Orders is cancelled and the rest confirmed.
    const run orders_cancelled = play(0, "group orders");
    ASSERT_EQ(orders_cancelled.result, 1);

    for (int k = 1;; ++k) {
        SCOPED_TRACE("failing from allocation " + std::to_string(k));
        const run out = play(k);
        if (allocations < k) {  // finished before the k-th: every allocation has failed once
            EXPECT_EQ(k, clean.allocations_before.back() + 1);
            EXPECT_TRUE(out.after == clean.after);
            break;
        }
        // A refused Group Orders commit, once cancelled, left the working
        // copy as it was: Group Composition's own commit then stores that.
        const bool orders_refused = std::count(out.log.begin(), out.log.end(), "group orders: Cancel") > 0;
        EXPECT_EQ(out.result, orders_refused ? 1 : 0);
        EXPECT_TRUE(out.after == (orders_refused ? orders_cancelled.after : out.before));
        // The step in which the k-th allocation fell decides what comes next.
        size_t met = 0;
        while (met < steps.size() && clean.allocations_before[met] < k) ++met;
        if (met == 0) {
            EXPECT_TRUE(out.log.empty()) << "a working copy that cannot be made whole opens no dialog";
        } else if (const char *next = flow[met - 1].after_failure) {
            ASSERT_GT(out.log.size(), met);
            EXPECT_EQ(out.log[met], next);
        }
    }
    fail_from = 0;
}
