// The mode cursors shown over the host's view.
#pragma once

int cursor_start();
int cursor_tidyup();
int cursor_set_mode(int mode, int submode);
int cursor_refresh();
