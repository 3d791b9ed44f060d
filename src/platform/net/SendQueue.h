#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

// Bytes of one connection that wait for the kernel, in order. Keeps a small buffer for reuse, so that a connection
// whose answers are taken at once allocates only for its first one; a large buffer is given back when it runs empty.
class SendQueue {
public:
    bool empty() const { return bytes_.empty(); }
    std::size_t size() const { return bytes_.size() - taken_; }
    // What comes next; valid until the next call of append, drop or clear.
    std::span<const std::uint8_t> front() const { return std::span(bytes_).subspan(taken_); }

    void append(std::span<const std::uint8_t> data) {
        if (taken_ > bytes_.size() / 2) {
            bytes_.erase(bytes_.begin(), bytes_.begin() + static_cast<std::ptrdiff_t>(taken_));
            taken_ = 0;
        }
        bytes_.insert(bytes_.end(), data.begin(), data.end());
    }
    // Forgets the first `count` bytes, at most size().
    void drop(std::size_t count) {
        taken_ += count;
        if (taken_ == bytes_.size())
            clear();
    }
    void clear() {
        bytes_.clear();
        taken_ = 0;
        if (bytes_.capacity() > keptCapacity)
            std::vector<std::uint8_t>().swap(bytes_);
    }

private:
    static constexpr std::size_t keptCapacity = 4096;

    std::vector<std::uint8_t> bytes_;
    std::size_t taken_ = 0;
};
