// Every flow played again and again with one host operation failing: the
// k-th host_alloc, the k-th list acquisition, the k-th list release, the
// k-th create or copy, for k = 1, 2, ... Each run must end with nothing
// leaked, freed twice or freed with another size, every list released and
// whole, and the host's records as one whole outcome: the clean run's, or
// the clean run's without the one action that failed (the step in which the
// fault fell, or a step that opened its dialog), or, for a list the host
// would not hand out or take back, the clean run's with that list empty.
//
// The quick form (the default) tries k = 1, 2 and every fifth k of each
// family up to the clean run's count; EDITOR_SWEEP=full tries every k until
// a run no longer reaches it (scripts/sweep).
#include <cstdio>
#include <cstdlib>

#include "tests/sweep/sweep.h"

namespace {
bool full_sweep() {
    const char *mode = std::getenv("EDITOR_SWEEP");
    return mode && std::string(mode) == "full";
}

// EDITOR_SWEEP_FLOW: only the flows whose name holds this text.
bool chosen(const flow &f) {
    const char *only = std::getenv("EDITOR_SWEEP_FLOW");
    return !only || std::string(f.name).find(only) != std::string::npos;
}

bool tried(int k, bool full) { return full || k <= 2 || k % 5 == 0; }
}  // namespace

TEST_F(sweep_test, every_fault_of_every_flow_leaves_the_host_whole_and_nothing_behind) {
    const bool full = full_sweep();
    const DWORD started = GetTickCount();
    std::map<std::string, int> failures, outcomes;
    int points[FAMILY_COUNT] = {}, reported = 0;
    const std::vector<flow> &flows = all_flows();
    for (size_t fi = 0; fi < flows.size(); ++fi) {
        const flow &f = flows[fi];
        if (!chosen(f)) continue;
        SCOPED_TRACE(f.name);
        const outcome &clean = oracle(fi, "clean", {}, {});
        ASSERT_EQ(clean.played.size(), f.steps.size()) << "the clean run takes every step:\n" << described(clean);
        ASSERT_TRUE(clean.failures.empty()) << described(clean);
        for (int family = 0; family < FAMILY_COUNT; ++family) {
            for (int k = 1; full || k <= clean.seen[family]; ++k) {
                if (!tried(k, full)) continue;
                fault_plan plan;
                plan.family = family;
                plan.k = k;
                const outcome run = play(f, plan);
                if (!run.reached) break;
                ++points[family];
                for (const auto &kind : run.failures) failures[kind.first] += static_cast<int>(kind.second.size());
                const std::string how = matching_oracle(fi, run, plan);
                ++(how.empty() ? failures["partial result"] : outcomes[how]);
                if ((how.empty() || !run.failures.empty()) && ++reported <= 20)
                    ADD_FAILURE() << family_names[family] << " " << k << " failing\n"
                                  << (how.empty() ? "partial result; differs from the clean run in\n" +
                                                        differences(run.state, clean.state)
                                                  : "")
                                  << described(run);
            }
        }
    }
    // The figures of the robustness report.
    std::printf("sweep (%s): %u flows, %.0f s\n", full ? "full" : "quick", static_cast<unsigned>(flows.size()),
                (GetTickCount() - started) / 1000.0);
    for (int family = 0; family < FAMILY_COUNT; ++family)
        std::printf("  %-17s %5d fault points\n", family_names[family], points[family]);
    for (const auto &o : outcomes) std::printf("  ended as %-18s %5d runs\n", o.first.c_str(), o.second);
    for (const char *kind : {"hang", "leak", "unknown free", "size mismatch", "double destroy", "list not released",
                             "broken list", "partial result", "window left open", "unexpected window"})
        std::printf("  %-17s %5d\n", kind, failures[kind]);
    EXPECT_EQ(reported, 0);
}
