#pragma once

#include <unistd.h>
#include <utility>

// Owns one file descriptor of the operating system and closes it. Empty when it holds -1.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() { reset(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        reset();
        number_ = std::exchange(other.number_, -1);
        return *this;
    }

    explicit operator bool() const { return number_ >= 0; }
    int number() const { return number_; }
    void reset() {
        if (number_ >= 0)
            ::close(std::exchange(number_, -1));
    }

private:
    int number_ = -1;
};
