// The flags that every module keeps. Start answers 0 when already started,
// tidy-up answers 0 when not started. A dialog module also knows whether its
// dialog is open: its state is one set of module variables, so a second
// dialog of the same kind (a host request made from inside the first) must
// be refused, never allowed to overwrite what the first one edits.
#pragma once

struct module_flag {
    int started = 0;
    bool open = false;

    int start() {
        if (started) return 0;
        started = 1;
        return 1;
    }
    int tidyup() {
        if (!started) return 0;
        started = 0;
        return 1;
    }
};
