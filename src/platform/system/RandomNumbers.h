#pragma once

#include <cstdint>
#include <random>

namespace kestrel::system {

// Uniform pseudo-random numbers; the same seed gives the same ones on every system.
class RandomNumbers {
  public:
    explicit RandomNumbers(std::uint32_t seed) : generator_(seed) {}

    // At least 0 and less than 1, in steps of 2^-32.
    double Next() { return static_cast<double>(generator_()) / 0x1p32; }

  private:
    // std::mt19937 in 32-bit words: the same numbers in a fifth of the time.
    using Generator =
        std::mersenne_twister_engine<std::uint32_t, 32, 624, 397, 31, 0x9908b0df, 11, 0xffffffff, 7,
                                     0x9d2c5680, 15, 0xefc60000, 18, 1812433253>;

    Generator generator_;
};

}  // namespace kestrel::system
