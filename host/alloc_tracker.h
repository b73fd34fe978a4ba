// A host allocator that remembers every block with its size, so that leaks,
// frees of unknown blocks and frees with the wrong size are caught.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

class alloc_tracker {
public:
    void *alloc(uint32_t size);
    void free(void *block, uint32_t size);

    // While set, alloc answers null (a host out of memory).
    bool failing = false;
    // Allocations still granted before alloc starts failing; -1 for never.
    int fail_after = -1;

    size_t live_blocks() const { return blocks_.size(); }
    // Sizes asked for, in order, since the last reset.
    const std::vector<uint32_t> &requested_sizes() const { return requested_; }
    size_t live_blocks_of_size(uint32_t size) const;
    bool owns(const void *block) const { return blocks_.count(block) != 0; }

    // Everything wrong so far: leaks (live blocks), unknown frees, size
    // mismatches. Empty when all is well.
    std::vector<std::string> problems() const;
    std::string report() const;
    // Forgets live blocks (after a report) and past problems.
    void reset();

private:
    std::map<const void *, uint32_t> blocks_;
    std::vector<std::string> errors_;
    std::vector<uint32_t> requested_;
};
