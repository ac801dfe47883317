#pragma once

#include <unistd.h>

#include <utility>

namespace tintra {

/// Owns a file descriptor of the system; below 0 for none. Closed at the end of its life.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;

    int number() const { return number_; }
    bool isOpen() const { return number_ >= 0; }
    /// Whether closing succeeded: it can be what reports a full disk.
    bool close() { return ::close(std::exchange(number_, -1)) == 0; }

private:
    int number_;
};

} // namespace tintra
