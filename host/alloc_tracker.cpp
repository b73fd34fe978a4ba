#include "host/alloc_tracker.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <windows.h>

namespace {
constexpr size_t page = 4096;
// Freed guarded regions kept untouchable before their address space is
// reused: enough to catch a use soon after the free, few enough that a long
// run does not exhaust a 32-bit address space.
constexpr size_t quarantine_limit = 256;
}  // namespace

alloc_tracker::~alloc_tracker() { reset(); }

void *alloc_tracker::guarded_alloc(uint32_t size, void *&region) {
    const size_t pages = (size + page - 1) / page + (size == 0);
    auto *base = static_cast<char *>(VirtualAlloc(nullptr, (pages + 1) * page, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
    if (!base) return nullptr;
    DWORD old = 0;
    VirtualProtect(base + pages * page, page, PAGE_NOACCESS, &old);
    region = base;
    // The last byte of the block is the last byte before the guard page.
    return base + pages * page - size;
}

void *alloc_tracker::alloc(uint32_t size) {
    requested_.push_back(size);
    if (failing || fail_after == 0) return nullptr;
    if (fail_after > 0) --fail_after;
    void *region = nullptr;
    void *block = guard_pages ? guarded_alloc(size, region) : std::malloc(size ? size : 1);
    if (!block) return nullptr;
    // Filled with a pattern so that a reader of uninitialised bytes shows up.
    std::memset(block, 0xCD, size);
    blocks_[block] = {size, region};
    return block;
}

void alloc_tracker::release(void *block, const block_info &info) {
    if (!info.region) {
        std::free(block);
        return;
    }
    // The block's pages are those still writable from the region's start.
    MEMORY_BASIC_INFORMATION pages{};
    DWORD old = 0;
    if (VirtualQuery(info.region, &pages, sizeof pages)) VirtualProtect(info.region, pages.RegionSize, PAGE_NOACCESS, &old);
    quarantine_.push_back(info.region);
    if (quarantine_.size() > quarantine_limit) {
        VirtualFree(quarantine_.front(), 0, MEM_RELEASE);
        quarantine_.pop_front();
    }
}

void alloc_tracker::free(void *block, uint32_t size) {
    char text[128];
    auto found = blocks_.find(block);
    if (found == blocks_.end()) {
        std::snprintf(text, sizeof text, "free of unknown block %p (size %u)", block, size);
        errors_.push_back(text);
        return;
    }
    if (found->second.size != size) {
        std::snprintf(text, sizeof text, "block %p of %u bytes freed with size %u", block,
                      found->second.size, size);
        errors_.push_back(text);
    }
    std::memset(block, 0xDD, found->second.size);
    release(block, found->second);
    blocks_.erase(found);
}

size_t alloc_tracker::live_blocks_of_size(uint32_t size) const {
    size_t count = 0;
    for (const auto &block : blocks_) count += block.second.size == size;
    return count;
}

uint32_t alloc_tracker::size_of(const void *block) const {
    auto found = blocks_.find(block);
    return found == blocks_.end() ? 0 : found->second.size;
}

std::vector<std::string> alloc_tracker::problems() const {
    std::vector<std::string> all = errors_;
    char text[128];
    for (const auto &block : blocks_) {
        std::snprintf(text, sizeof text, "leak: block %p of %u bytes", block.first, block.second.size);
        all.push_back(text);
    }
    return all;
}

std::string alloc_tracker::report() const {
    std::vector<std::string> all = problems();
    char text[160];
    std::snprintf(text, sizeof text, "allocator: %u allocations, %u live blocks, %u problems\n",
                  static_cast<unsigned>(requested_.size()), static_cast<unsigned>(blocks_.size()),
                  static_cast<unsigned>(all.size()));
    std::string out = text;
    for (const std::string &line : all) out += "  " + line + "\n";
    return out;
}

void alloc_tracker::reset() {
    for (auto &block : blocks_) {
        if (block.second.region) VirtualFree(block.second.region, 0, MEM_RELEASE);
        else std::free(const_cast<void *>(block.first));
    }
    for (void *region : quarantine_) VirtualFree(region, 0, MEM_RELEASE);
    quarantine_.clear();
    blocks_.clear();
    errors_.clear();
    requested_.clear();
    failing = false;
    fail_after = -1;
}
