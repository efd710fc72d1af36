#pragma once

#include <stdexcept>
#include <string>

namespace sagomi {

/// A failure that brings the number its origin gave it, for the message that shows both.
class ErroreNumerato : public std::runtime_error {
public:
    explicit ErroreNumerato(const std::string& testo, int numero = 0)
        : std::runtime_error(testo), numero_(numero) {}
    [[nodiscard]] int Numero() const { return numero_; }

private:
    int numero_;
};

/// An arithmetic stop: the guard of the screens turns it into a message box with its number and text.
class ErroreAritmetico : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace sagomi
