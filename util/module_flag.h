// The started flag that every module keeps: start answers 0 when already
// started, tidy-up answers 0 when not started.
#pragma once

struct module_flag {
    int started = 0;

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
