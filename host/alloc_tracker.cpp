#include "host/alloc_tracker.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

void *alloc_tracker::alloc(uint32_t size) {
    requested_.push_back(size);
    if (failing || fail_after == 0) return nullptr;
    if (fail_after > 0) --fail_after;
    // Filled with a pattern so that a reader of uninitialised bytes shows up.
    void *block = std::malloc(size ? size : 1);
    if (!block) return nullptr;
    std::memset(block, 0xCD, size);
    blocks_[block] = size;
    return block;
}

void alloc_tracker::free(void *block, uint32_t size) {
    char text[128];
    auto found = blocks_.find(block);
    if (found == blocks_.end()) {
        std::snprintf(text, sizeof text, "free of unknown block %p (size %u)", block, size);
        errors_.push_back(text);
        return;
    }
    if (found->second != size) {
        std::snprintf(text, sizeof text, "block %p of %u bytes freed with size %u", block,
                      found->second, size);
        errors_.push_back(text);
    }
    std::memset(block, 0xDD, found->second);
    std::free(block);
    blocks_.erase(found);
}

size_t alloc_tracker::live_blocks_of_size(uint32_t size) const {
    size_t count = 0;
    for (const auto &block : blocks_) count += block.second == size;
    return count;
}

std::vector<std::string> alloc_tracker::problems() const {
    std::vector<std::string> all = errors_;
    char text[128];
    for (const auto &block : blocks_) {
        std::snprintf(text, sizeof text, "leak: block %p of %u bytes", block.first, block.second);
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
    for (auto &block : blocks_) std::free(const_cast<void *>(block.first));
    blocks_.clear();
    errors_.clear();
    requested_.clear();
    failing = false;
    fail_after = -1;
}
