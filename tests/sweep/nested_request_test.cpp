// Requests made again from inside every dialog, as a host's timer could,
// wherever each kind of dialog is first up in the flows: every request code
// with valid arguments (on records of their own), editor_update and a
// second editor_init. A request for a kind that is open already answers 0
// at once and shows nothing; every other one is served (a box is answered,
// a dialog cancelled) and leaves its records as they were; afterwards the
// dialog goes on and the flow ends as it always does. Then editor_tidyup
// from the same place: every open dialog ends as if cancelled there, and
// the editor, started again, plays every flow as before.
#include <cstdio>
#include <set>

#include "editor/editor.h"
#include "tests/sweep/sweep.h"

namespace {
bool ends_with(const std::string &text, const std::string &end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

std::string joined(const std::vector<std::string> &lines) {
    std::string out;
    for (const std::string &line : lines) out += "    " + line + "\n";
    return out;
}
}  // namespace

class nested_request_test : public sweep_test {
protected:
    std::vector<std::string> wrong;  // what went otherwise than expected inside the dialogs
    int refused = 0, served = 0;

    void restart() {
        EXPECT_EQ(start_editor(), 1);
        install_fault_points();
    }

    // Every request from inside the dialogs that are up, on a mission of its own.
    void ask_everything() {
        std::set<std::string> open;
        for (HWND w : ui_thread_windows())
            if (is_flow_window(w)) open.insert(kind_of(w));
        mission other;
        other.build(host);
        other.run->cancelled = other.rally->cancelled = 1;  // as a cancelled dialog leaves them
        const record_bytes before = other.snapshot();
        char path[MAX_PATH] = "";
        for (int code = 0; code < 16; ++code) {
            std::pair<uintptr_t, uintptr_t> args{reinterpret_cast<uintptr_t>("Nested"), MESSAGE_INFORMATION};
            if (code == REQUEST_SAVE_WORLD_FILE || code == REQUEST_SAVE_MISSION_FILE) args = {reinterpret_cast<uintptr_t>(path), sizeof path};
            for (const flow &f : all_flows())
                if (f.request == code) args = f.args(other);
            // One dialog of a kind at a time; and no Group List over Group
            // Composition, whose working copy it would reach.
            const std::string kind = kind_opened_by(code);
            const bool refuse = open.count(kind) || (code == REQUEST_GROUP_LIST && open.count("composition"));
            const std::vector<std::string> expected = refuse ? std::vector<std::string>{} : std::vector<std::string>{kind};
            std::vector<std::string> shown;
            const int result = answered([&] { return editor_window(code, args.first, args.second); }, shown);
            ++(refuse ? refused : served);
            if (shown != expected || result != (kind == "box" ? 1 : 0))
                wrong.push_back("request " + std::to_string(code) + " answered " + std::to_string(result) + ", showing " +
                                (shown.empty() ? "nothing" : shown.front()));
        }
        editor_state state = editor_stored_state();
        state.position[0] += 1;
        state.edit_mode = (state.edit_mode + 1) % 5;
        const editor_state was = editor_stored_state();
        if (editor_update(state) != 1 || editor_update(state) != 0 || editor_update(was) != 1)
            wrong.push_back("editor_update was not served");
        if (editor_init(host.setup()) != 0) wrong.push_back("a second editor_init was not refused");
        if (other.snapshot() != before) wrong.push_back("nested requests changed\n" + differences(other.snapshot(), before));
        other.free(host);
    }
};

TEST_F(nested_request_test, every_request_from_inside_every_dialog_is_refused_or_served_and_the_dialog_carries_on) {
    const std::vector<flow> &flows = all_flows();
    std::set<std::string> kinds;
    for (size_t fi = 0; fi < flows.size(); ++fi) {
        for (size_t s = 0; s < flows[fi].steps.size(); ++s) {
            const std::string kind = flows[fi].steps[s].kind;
            if (!kinds.insert(kind).second) continue;
            SCOPED_TRACE(kind + ", in " + flows[fi].name);
            const outcome &clean = oracle(fi, "clean", {}, {});

            variation asked;
            asked.probe_at = s;
            asked.probe = [this](HWND) {
                ask_everything();
                return true;
            };
            wrong.clear();
            const outcome served = play(flows[fi], {}, asked);
            EXPECT_TRUE(wrong.empty()) << joined(wrong);
            EXPECT_TRUE(served.failures.empty()) << described(served);
            EXPECT_TRUE(served.state == clean.state) << differences(served.state, clean.state) << described(served);

            // Shut down there, started again at once or only afterwards,
            // the designer going on: as if every dialog had been cancelled
            // at that point.
            variation cancelled;
            cancelled.stop = s;
            const outcome &expected = oracle(fi, "stop " + std::to_string(s), {}, cancelled);
            for (bool restart_inside : {true, false}) {
                variation shut;
                shut.probe_at = s;
                shut.probe = [this, restart_inside](HWND) {
                    EXPECT_EQ(editor_tidyup(), 1);
                    if (restart_inside) restart();
                    return true;
                };
                const outcome ended = play(flows[fi], {}, shut);
                if (!restart_inside) restart();
                EXPECT_TRUE(ended.failures.empty()) << described(ended);
                EXPECT_TRUE(ended.state == expected.state) << differences(ended.state, expected.state) << described(ended);
            }
        }
    }
    EXPECT_EQ(kinds.size(), 22u) << "every dialog of the editor is reached";
    // Somewhere in the flows, each kind is ended with OK, with Cancel and with its close box.
    for (const std::string &kind : kinds) {
        std::set<std::string> ends;
        for (const flow &f : flows)
            for (const step &st : f.steps)
                for (const std::string end : {"OK", "Cancel", "close box"})
                    if (st.kind == kind && ends_with(st.name, end)) ends.insert(end);
        EXPECT_EQ(ends.size(), 3u) << kind;
    }
    std::printf("nested requests: %u dialog kinds, %d requests refused, %d served, %u shut-downs\n",
                static_cast<unsigned>(kinds.size()), refused, served, static_cast<unsigned>(2 * kinds.size()));
    for (size_t fi = 0; fi < flows.size(); ++fi)
        EXPECT_TRUE(play(flows[fi], {}).state == oracle(fi, "clean", {}, {}).state) << flows[fi].name;
}
