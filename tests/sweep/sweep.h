// The fault sweep's judge: a test host with the fault points, playing flows
// over fresh missions (host/sweep_player.h), and the oracles a faulty run
// must end as.
#pragma once

#include "host/sweep_player.h"
#include "tests/support/editor_test.h"

class sweep_test : public editor_test {
protected:
    void SetUp() override;
    outcome play(const flow &f, const fault_plan &plan, variation v = {}) { return ::play(host, f, plan, std::move(v)); }
    // A fault-free variant of a flow, played once and kept.
    const outcome &oracle(size_t flow_index, const std::string &key, const fault_plan &plan, variation v);
    // The first of the oracles that `run` ends as, having taken the same
    // steps (but the clean run, which any path may reach); empty when none.
    std::string matching_oracle(size_t flow_index, const outcome &run, const fault_plan &plan);

private:
    std::map<std::pair<size_t, std::string>, outcome> oracles_;
};

// Where two end states differ, one key a line.
std::string differences(const record_bytes &a, const record_bytes &b);
// A run's failures, one kind a line with its first instance, then its steps.
std::string described(const outcome &run);
