#include "tests/sweep/sweep.h"

void sweep_test::SetUp() {
    editor_test::SetUp();
    mission::stock(host);
    ASSERT_EQ(start_editor(), 1);
    install_fault_points();
}

const outcome &sweep_test::oracle(size_t flow_index, const std::string &key, const fault_plan &plan, variation v) {
    auto found = oracles_.find({flow_index, key});
    if (found != oracles_.end()) return found->second;
    outcome run = play(all_flows()[flow_index], plan, std::move(v));
    EXPECT_TRUE(run.failures.empty()) << all_flows()[flow_index].name << ", " << key << "\n" << described(run);
    return oracles_[{flow_index, key}] = std::move(run);
}

namespace {
// The steps taken and the dialogs cancelled, a step not acted on counting
// as taken; message boxes left out (a refused list may bring one).
std::vector<std::string> path(const outcome &run) {
    std::vector<std::string> out;
    for (std::string line : run.log) {
        if (line.rfind("box: ", 0) == 0) continue;
        const size_t open = line.find(": (");
        if (open != std::string::npos && line.back() == ')') line = line.substr(0, open + 2) + line.substr(open + 3, line.size() - open - 4);
        out.push_back(line);
    }
    return out;
}
}  // namespace

std::string sweep_test::matching_oracle(size_t flow_index, const outcome &run, const fault_plan &plan) {
    if (run.state == oracle(flow_index, "clean", {}, {}).state) return "clean";
    auto same_as = [&](const std::string &key, fault_plan p, variation v, bool same_path) {
        const outcome &o = oracle(flow_index, key, p, std::move(v));
        return run.state == o.state && (!same_path || path(run) == path(o));
    };
    // The step in which the fault fell (run.played[i - 1]), the designer
    // taking the same steps otherwise; or a step that opened its dialog,
    // when the fault ended that step's whole action (a new order's commit
    // after its dialogs were confirmed): then no later step acts inside it.
    size_t i = 0;
    while (i < run.played.size() && run.played[i].seen < plan.k) ++i;
    const int next_depth = i < run.played.size() ? run.played[i].depth : 0;
    int depth = INT_MAX;
    for (size_t at = i; at-- > 0;) {
        const bool fault_step = at + 1 == i;
        if (!fault_step && run.played[at].depth >= depth) continue;
        depth = run.played[at].depth;
        if (!fault_step && next_depth > depth) break;
        variation v;
        v.drop = static_cast<int>(run.played[at].step);
        if (same_as("drop " + std::to_string(v.drop), {}, v, fault_step)) return "one-action-undone";
    }
    if (run.played.empty()) {
        variation v;
        v.stop = 0;
        if (same_as("stop 0", {}, v, false)) return "nothing-done";
    }
    if (plan.family == REFUSE_ACQUIRE || plan.family == REFUSE_RELEASE) {
        fault_plan empty;
        empty.empty_acquire = plan.family == REFUSE_ACQUIRE ? plan.k : run.refused_acquire;
        if (same_as("empty " + std::to_string(empty.empty_acquire), empty, {}, true)) return "empty-list";
    }
    return "";
}

std::string differences(const record_bytes &a, const record_bytes &b) {
    std::string out;
    for (const auto &entry : a) {
        auto other = b.find(entry.first);
        if (other == b.end() || other->second != entry.second) out += "  " + entry.first + "\n";
    }
    for (const auto &entry : b)
        if (!a.count(entry.first)) out += "  " + entry.first + "\n";
    return out;
}

std::string described(const outcome &run) {
    std::string out;
    for (const auto &kind : run.failures) out += kind.first + ": " + kind.second.front() + "\n";
    for (const std::string &line : run.log) out += "    " + line + "\n";
    return out;
}
