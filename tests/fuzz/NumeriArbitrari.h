#pragma once

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <span>

namespace sagomi::prove {

/// Ends the run where the program has answered wrongly.
inline void Pretende(bool giusto) {
    if (!giusto)
        std::abort();
}

/// Numbers out of whatever bytes: plausible measures, whole numbers, the edges of the type, any bit pattern.
/// When the bytes are at an end, all are 0.
class NumeriArbitrari {
public:
    NumeriArbitrari(const std::uint8_t* data, std::size_t size) : byte_(data, size) {}

    [[nodiscard]] bool Finiti() const { return byte_.empty(); }

    std::uint8_t Byte() {
        if (byte_.empty())
            return 0;
        const std::uint8_t b = byte_.front();
        byte_ = byte_.subspan(1);
        return b;
    }
    /// A whole number from 0 to n - 1.
    int Scelta(int n) { return Byte() % n; }
    bool Logico() { return (Byte() & 1U) != 0; }

    /// Any double.
    double Numero() {
        constexpr std::uint8_t bordo = 240, qualsiasi = 250, intero = 200;
        const std::uint8_t maniera = Byte();
        if (maniera >= qualsiasi)
            return std::bit_cast<double>(Bit(8));
        if (maniera >= bordo)
            return Bordo();
        const double valore = static_cast<double>(Bit(2));
        return maniera >= intero ? valore - 32768 : valore / 10;
    }
    /// A measure as a section has it, 0 to 6553.5.
    double Misura() { return static_cast<double>(Bit(2)) / 10; }

private:
    std::uint64_t Bit(int n) {
        std::uint64_t bit = 0;
        for (int i = 0; i < n; ++i)
            bit = bit << 8U | Byte();
        return bit;
    }
    double Bordo() {
        using Limiti = std::numeric_limits<double>;
        constexpr double bordi[] = {0,
                                    -0.0,
                                    1,
                                    -1,
                                    1e-6,
                                    1e6,
                                    1e20,
                                    -1e20,
                                    1e38,
                                    3.5e38,
                                    1e300,
                                    -1e300,
                                    1e-300,
                                    Limiti::infinity(),
                                    -Limiti::infinity(),
                                    Limiti::quiet_NaN(),
                                    Limiti::denorm_min(),
                                    Limiti::max(),
                                    32767,
                                    32768,
                                    65536};
        return bordi[static_cast<std::size_t>(Scelta(static_cast<int>(std::size(bordi))))];
    }

    std::span<const std::uint8_t> byte_;
};

} // namespace sagomi::prove
