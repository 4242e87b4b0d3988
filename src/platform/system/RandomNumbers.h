#pragma once

#include <cstdint>
#include <random>

namespace kestrel::system {

// Uniform pseudo-random numbers; the same seed gives the same ones on every system.
class RandomNumbers {
  public:
    explicit RandomNumbers(std::uint32_t seed) : generator_(seed) {}

    // At least 0 and less than 1, in steps of 2^-32.
    double Next() { return static_cast<double>(static_cast<std::uint32_t>(generator_())) / 0x1p32; }

  private:
    std::mt19937 generator_;
};

}  // namespace kestrel::system
