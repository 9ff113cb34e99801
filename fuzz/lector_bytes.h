#pragma once
// The fuzz input read a byte at a time; past its end every byte reads as 0.

#include <cstddef>
#include <cstdint>

class Lector {
public:
    Lector(const uint8_t* d, size_t n) : d_(d), n_(n) {}
    bool Queda() const { return i_ < n_; }
    uint8_t Byte() { return i_ < n_ ? d_[i_++] : 0; }

private:
    const uint8_t* d_;
    size_t n_, i_ = 0;
};
