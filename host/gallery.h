// The tour's gallery: a PNG of every window the tour shows (tour_screenshot in
// host_app.h), and an index page that lists them in tour order, grouped by
// window, each with a caption saying what opened it.
#pragma once

// Writes index.html into the gallery folder for the pictures the tour saved,
// logs the count, and returns the number of tour problems (0 when all went well).
int finish_tour_gallery();
