#include "host/gallery.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "host/host_app.h"
#include "host/ui_driver.h"

// The PNG writer's code is compiled here and nowhere else.
#define STB_IMAGE_WRITE_IMPLEMENTATION
#include "stb_image_write.h"

namespace {
struct gallery_picture {
    std::string group;    // the window shown: the index's section
    std::string name;     // the file name without ".png"
    std::string caption;  // which request or button opened it, with what sample data
    int width = 0;
    int height = 0;
};

std::vector<gallery_picture> &pictures() {
    static std::vector<gallery_picture> saved;
    return saved;
}

int &problem_count() {
    static int count = 0;
    return count;
}

std::string escape(const std::string &text) {
    std::string out;
    for (char c : text) {
        switch (c) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '"': out += "&quot;"; break;
        default: out += c;
        }
    }
    return out;
}

// A group's anchor: its letters and digits, lower case, words joined by '-'.
std::string anchor(const std::string &group) {
    std::string out;
    for (char c : group) {
        if (std::isalnum(static_cast<unsigned char>(c)))
            out += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        else if (!out.empty() && out.back() != '-')
            out += '-';
    }
    while (!out.empty() && out.back() == '-') out.pop_back();
    return out.empty() ? "window" : out;
}

// The window as it is on the screen, 8-bit RGB rows from the top.
bool capture(HWND window, std::vector<uint8_t> &rgb, int &width, int &height) {
    RECT r;
    if (!window || !IsWindow(window) || !GetWindowRect(window, &r)) return false;
    width = r.right - r.left;
    height = r.bottom - r.top;
    if (width <= 0 || height <= 0) return false;
    HDC screen = GetDC(nullptr);
    HDC mem = CreateCompatibleDC(screen);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void *bits = nullptr;
    HBITMAP bitmap = CreateDIBSection(mem, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    bool ok = bitmap && bits;
    if (ok) {
        HGDIOBJ old = SelectObject(mem, bitmap);
        ok = BitBlt(mem, 0, 0, width, height, screen, r.left, r.top, SRCCOPY) != 0;
        GdiFlush();
        const auto *bgrx = static_cast<const uint8_t *>(bits);
        rgb.resize(static_cast<size_t>(width) * height * 3);
        for (size_t i = 0; i < static_cast<size_t>(width) * height; ++i) {
            rgb[i * 3] = bgrx[i * 4 + 2];
            rgb[i * 3 + 1] = bgrx[i * 4 + 1];
            rgb[i * 3 + 2] = bgrx[i * 4];
        }
        SelectObject(mem, old);
    }
    if (bitmap) DeleteObject(bitmap);
    DeleteDC(mem);
    ReleaseDC(nullptr, screen);
    return ok;
}

// One section per window in order of first appearance, its pictures in tour
// order, each figure on a line of its own.
std::string index_html(const std::vector<gallery_picture> &all) {
    std::vector<std::string> groups;
    for (const gallery_picture &p : all)
        if (std::find(groups.begin(), groups.end(), p.group) == groups.end()) groups.push_back(p.group);

    std::string html =
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<title>Mission editor windows: the tour's gallery</title>\n<style>\n"
        "body { font-family: sans-serif; margin: 1.5em 2em; background: #eceff1; color: #222; }\n"
        "nav a { margin-right: 1.2em; white-space: nowrap; }\n"
        "h2 { margin-top: 1.6em; border-bottom: 1px solid #aaa; }\n"
        "figure { display: inline-block; vertical-align: top; margin: 0 1.6em 1.6em 0; }\n"
        "img { display: block; border: 1px solid #888; }\n"
        "figcaption { font-size: 0.9em; margin-top: 0.4em; }\n"
        ".file { color: #666; font-family: monospace; }\n"
        "</style>\n</head>\n<body>\n<h1>Mission editor windows</h1>\n";
    html += "<p>" + std::to_string(all.size()) + " screenshots of " + std::to_string(groups.size()) +
            " windows, as the substitute host's tour (<code>editor_host.exe --tour</code>) opened them over "
            "its sample mission. Numbers give the tour's order; a picture opens at full size.</p>\n<nav>";
    for (const std::string &g : groups) html += "<a href=\"#" + anchor(g) + "\">" + escape(g) + "</a> ";
    html += "</nav>\n";
    for (const std::string &g : groups) {
        html += "<section id=\"" + anchor(g) + "\">\n<h2>" + escape(g) + "</h2>\n";
        for (size_t i = 0; i < all.size(); ++i) {
            const gallery_picture &p = all[i];
            if (p.group != g) continue;
            const std::string file = escape(p.name) + ".png";
            // Captions wrap at the picture's width, or a readable width for narrow windows.
            const int width = p.width < 280 ? 280 : p.width;
            html += "<figure id=\"" + escape(p.name) + "\" style=\"width: " + std::to_string(width) + "px\">" +
                    "<a href=\"" + file + "\"><img src=\"" + file + "\" width=\"" + std::to_string(p.width) +
                    "\" height=\"" + std::to_string(p.height) + "\" alt=\"" + escape(g) + "\"></a><figcaption>" +
                    std::to_string(i + 1) + ". " + escape(p.caption) + " <span class=\"file\">" + file +
                    "</span></figcaption></figure>\n";
        }
        html += "</section>\n";
    }
    html += "</body>\n</html>\n";
    return html;
}
}  // namespace

void tour_problem(const std::string &what) {
    ++problem_count();
    app().log("tour problem: " + what);
}

void tour_check(const ui_driver &driver) {
    if (!driver.ok()) tour_problem(driver.failures());
}

void tour_screenshot(HWND window, const std::string &group, const std::string &name, const std::string &caption) {
    host_app &a = app();
    if (a.gallery.empty()) return;
    // Let the window and its children finish painting before the copy: the
    // screen is read, not the window's own drawing.
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_FRAME);
    for (DWORD start = GetTickCount(); GetTickCount() - start < 150;) {
        MSG msg;
        while (PeekMessageA(&msg, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE)) DispatchMessageA(&msg);
        Sleep(10);
    }
    GdiFlush();
    gallery_picture picture{group, name, caption};
    std::vector<uint8_t> rgb;
    if (!capture(window, rgb, picture.width, picture.height)) {
        tour_problem("no window to save as " + name);
        return;
    }
    std::string path = a.gallery + "\\" + name + ".png";
    if (!stbi_write_png(path.c_str(), picture.width, picture.height, 3, rgb.data(), picture.width * 3)) {
        tour_problem("cannot write " + path);
        return;
    }
    pictures().push_back(picture);
    a.log("screenshot: " + path);
}

int tour_modal(const std::string &title, const std::string &group, const std::string &name,
               const std::string &caption, int (*open)(), int close_id) {
    ui_driver driver;
    driver.then(title, [=](HWND window) {
        tour_screenshot(window, group, name, caption);
        ui_command(window, close_id);
    });
    int result = open();
    tour_check(driver);
    return result;
}

int finish_tour_gallery() {
    host_app &a = app();
    const std::string path = a.gallery + "\\index.html";
    const std::string html = index_html(pictures());
    FILE *file = std::fopen(path.c_str(), "wb");
    bool written = file && std::fwrite(html.data(), 1, html.size(), file) == html.size();
    if (file && std::fclose(file) != 0) written = false;
    if (!written) tour_problem("cannot write " + path);
    a.log("tour: " + std::to_string(pictures().size()) + " screenshots, " + std::to_string(problem_count()) +
          " problems; open " + path);
    return problem_count();
}
