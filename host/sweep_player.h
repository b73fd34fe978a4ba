// The fault sweep's machinery on the test host: a mission of every kind of
// record in host memory, built afresh for each run; host operations that
// fail on their k-th call; and a player that drives whatever dialog is up
// through a flow of designer steps, so that a run copes with dialogs that do
// not open, stay open or close early. Each run's end state is the host's
// records, byte by byte, with the request's result and what went wrong on
// the host's side; judging it is the tests' business.
#pragma once

#include <climits>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "host/test_host.h"

// --- The mission -------------------------------------------------------------------
using record_bytes = std::map<std::string, std::string>;  // key: a record's place ("heli group 1")

struct mission {
    dlist_node *groups = nullptr;       // group_record *, one of them removed
    dlist_node *objects = nullptr;      // unit_entry *, for the object name list
    dlist_node *heli_groups = nullptr;  // heli_group_record *
    dlist_node *available = nullptr;    // unit_entry *
    bombing_run_record *run = nullptr;
    rally_point_record *rally = nullptr;
    create_objects_record *placement = nullptr;
    const alloc_tracker *memory = nullptr;  // the host's, whose live blocks the lists' nodes must be

    // The names, units and rally points the host's lists hand out.
    static void stock(test_host &host);
    void build(test_host &host);
    void free(test_host &host);
    // Every record, list entry and body reachable from the roots, pointers
    // left out; each list on the way checked both ways, what is not whole
    // reported into `broken`.
    record_bytes snapshot(std::vector<std::string> *broken = nullptr) const;
};

// --- Fault points --------------------------------------------------------------------
enum fault_family { FAIL_ALLOCATION, REFUSE_ACQUIRE, REFUSE_RELEASE, FAIL_CREATE_COPY, FAMILY_COUNT };
extern const char *const family_names[FAMILY_COUNT];

struct fault_plan {
    int family = -1;       // the family that fails, on its k-th call; -1: none
    int k = 0;
    int empty_acquire = 0;  // the n-th list acquisition hands out an empty list (an oracle's host)
    int seen[FAMILY_COUNT] = {};
    bool reached = false;     // the k-th call came
    int refused_acquire = 0;  // for a refused release: the acquisition it paired with
};
extern fault_plan faults;

// Routes the stored host operations through the fault points (after each editor_init).
void install_fault_points();

// --- Flows -----------------------------------------------------------------------------
using action = std::function<void(HWND dialog)>;
struct step {
    const char *kind;  // kind_of the dialog it acts on
    const char *name;
    action act;
};
struct flow {
    const char *name;
    int request;
    std::function<std::pair<uintptr_t, uintptr_t>(const mission &)> args;
    std::vector<step> steps;
};
const std::vector<flow> &all_flows();

// A dialog's kind: its title, with the ones that share a title told apart by a
// control; "box" for a message box; empty for a window no flow knows.
std::string kind_of(HWND window);
// The kind of dialog a request opens ("box" for a message request); empty for none.
std::string kind_opened_by(int request);
// A dialog or message box of this thread that a flow may meet (not the
// Status window, not the host's).
bool is_flow_window(HWND window);

// How a run departs from its flow.
struct variation {
    int drop = -2;                // this step is taken but not acted on
    size_t stop = SIZE_MAX;       // from this step on every dialog is cancelled
    size_t probe_at = SIZE_MAX;   // before this step, the probe runs on its dialog
    std::function<bool(HWND)> probe;  // false: the flow stops there (stop = probe_at)
};

struct outcome {
    record_bytes state;  // with "result"
    std::vector<std::string> log;
    struct played_step {
        size_t step;
        int seen;   // calls of the plan's family before it
        int depth;  // dialogs up when it was taken
    };
    std::vector<played_step> played;
    int seen[FAMILY_COUNT] = {};
    bool reached = false, hung = false;
    int refused_acquire = 0;
    // Failure kind -> what happened.
    std::map<std::string, std::vector<std::string>> failures;
};

// Plays a flow over a fresh mission with the plan's fault points, on an
// editor started on `host` with install_fault_points; the host's allocator
// and records are checked and forgotten afterwards.
outcome play(test_host &host, const flow &f, const fault_plan &plan, variation v = {});

// Runs `call` (a request made from inside a dialog) answering the first flow
// window it brings up: a message box with OK or Yes, anything else with
// Cancel. Each is named in `shown` by its kind (or quoted title), with a
// note for one that would not close.
int answered(const std::function<int()> &call, std::vector<std::string> &shown);
