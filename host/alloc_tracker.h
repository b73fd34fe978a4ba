// A host allocator that remembers every block with its size, so that leaks,
// frees of unknown blocks and frees with the wrong size are caught.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <vector>

class alloc_tracker {
public:
    alloc_tracker() = default;
    ~alloc_tracker();
    alloc_tracker(const alloc_tracker &) = delete;
    alloc_tracker &operator=(const alloc_tracker &) = delete;

    void *alloc(uint32_t size);
    void free(void *block, uint32_t size);

    // While set, alloc answers null (a host out of memory).
    bool failing = false;
    // Allocations still granted before alloc starts failing; -1 for never.
    int fail_after = -1;
    // While set, each new block ends exactly where a page the process may not
    // touch begins, and a freed block stays untouchable for a while: a read
    // or write past a block's end, or of a block already given back, faults
    // at that very instruction instead of corrupting something quietly.
    bool guard_pages = false;

    size_t live_blocks() const { return blocks_.size(); }
    // Sizes asked for, in order, since the last reset.
    const std::vector<uint32_t> &requested_sizes() const { return requested_; }
    size_t live_blocks_of_size(uint32_t size) const;
    bool owns(const void *block) const { return blocks_.count(block) != 0; }
    // The size a live block was asked for with; 0 when the block is not live.
    uint32_t size_of(const void *block) const;

    // Unknown frees and size mismatches so far (leaks are not counted: the
    // host holds live blocks until it ends).
    const std::vector<std::string> &errors() const { return errors_; }
    // Everything wrong so far: leaks (live blocks), unknown frees, size
    // mismatches. Empty when all is well.
    std::vector<std::string> problems() const;
    std::string report() const;
    // Forgets live blocks (after a report) and past problems.
    void reset();

private:
    struct block_info {
        uint32_t size;
        void *region;  // the guarded pages the block sits in; null for the heap
    };
    void *guarded_alloc(uint32_t size, void *&region);
    void release(void *block, const block_info &info);

    std::map<const void *, block_info> blocks_;
    std::deque<void *> quarantine_;  // freed guarded regions, still untouchable
    std::vector<std::string> errors_;
    std::vector<uint32_t> requested_;
};
