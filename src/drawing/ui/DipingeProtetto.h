#pragma once

#include <functional>

class QObject;

namespace sagomi {

/// Draws in the middle of a painting and puts the output back. What is thrown is told once the painting is
/// over, as no box can be shown before.
/// @return false when something was thrown; the next painting would fail alike
bool DipingeProtetto(QObject* contesto, const std::function<void()>& dipinge);

} // namespace sagomi
