#pragma once

#include <cstddef>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <vector>

namespace sagomi {

/// A table counted from 1, as the lists of the settings are. An index outside 1..n throws std::out_of_range.
template <typename T> class Tabella1 {
public:
    Tabella1() = default;
    Tabella1(std::initializer_list<T> valori) : dati_(valori) {}

    [[nodiscard]] int n() const { return static_cast<int>(dati_.size()); }

    T& operator[](int i) { return dati_[Posto(i)]; }
    const T& operator[](int i) const { return dati_[Posto(i)]; }

    /// Dimensions the table 1..n anew, with values at their default.
    void Dimensiona(int n) { dati_.assign(static_cast<std::size_t>(n > 0 ? n : 0), T{}); }

    bool operator==(const Tabella1&) const = default;

    auto begin() const { return dati_.begin(); }
    auto end() const { return dati_.end(); }

private:
    [[nodiscard]] std::size_t Posto(int i) const {
        if (i < 1 || i > n())
            throw std::out_of_range("indice " + std::to_string(i) + " fuori da 1.." + std::to_string(n()));
        return static_cast<std::size_t>(i - 1);
    }
    std::vector<T> dati_;
};

} // namespace sagomi
