#pragma once

#include <stdexcept>

namespace sagomi {

/// An arithmetic stop: the guard of the screens turns it into a message box with its number and text.
class ErroreAritmetico : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace sagomi
