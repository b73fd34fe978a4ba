// The monkey: a seeded random designer let loose on editor.dll over the
// substitute host's sample mission. Requests come from the host side
// (monkey_main.cpp); inside each dialog a thread timer acts as the designer
// would (monkey_designer.cpp): clicks on enabled controls, list and combo
// selections, typed text from a pool of ordinary and hostile strings, OK,
// Cancel and the close box; nested dialogs open through those very clicks,
// and message boxes are answered at random. Everything random comes from one
// generator started from the seed, so a seed replays the same run.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include <windows.h>

// Marsaglia's xorshift32 (shifts 13, 17, 5). The state starts as
// seed x 2654435761 + 1 (and 1 should that be 0); below(n) is next() mod n.
class monkey_random {
public:
    explicit monkey_random(uint32_t seed) : state_(seed * 2654435761u + 1u) {
        if (!state_) state_ = 1;
    }
    uint32_t next() {
        state_ ^= state_ << 13;
        state_ ^= state_ >> 17;
        state_ ^= state_ << 5;
        return state_;
    }
    uint32_t below(uint32_t n) { return n ? next() % n : 0; }
    bool percent(uint32_t p) { return below(100) < p; }
    template <class T>
    const T &pick(const std::vector<T> &from) {
        return from[below(static_cast<uint32_t>(from.size()))];
    }

private:
    uint32_t state_;
};

// What a run did and found; printed at the end and on the first failure.
struct monkey_figures {
    uint32_t seed = 0;
    long budget = 0;
    long actions = 0;
    long requests = 0;
    long dialogs_opened = 0;
    long boxes_answered = 0;
    std::map<std::string, long> opened_by_title;
    std::map<std::string, long> actions_by_kind;
    uint32_t digest = 2166136261u;  // FNV-1a over every action, to compare two runs of a seed
};

monkey_figures &figures();
monkey_random &random_source();

// Prints the failure with the seed and the action count, and ends the run.
[[noreturn]] void monkey_fail(const std::string &kind, const std::string &detail);

// The checks run after every dialog that closes: the allocator (no unknown
// free or size mismatch), the helicopter store (no record destroyed twice),
// and every host list of the mission whole. With `idle` (no dialog open)
// every host list acquired must have been released too.
void check_host(const std::string &after, bool idle);

// The designer. Starts its timer; from then on every modal loop of the
// thread lets it act, until the action budget is spent, after which it only
// closes what is open.
void designer_start(bool trace);
void designer_stop();
// With no dialog up: `actions` actions on the toolbar and the Status window,
// served by a message loop of the host's.
void designer_modeless(long actions);
// The most recent designer's view, for the hang report.
std::string designer_last_seen();
// Milliseconds since the designer last acted.
DWORD designer_idle_ms();
// The text pool the designer types from (ordinary and hostile strings); the
// host also uses it for the texts of its message requests.
const std::vector<std::string> &text_pool();
