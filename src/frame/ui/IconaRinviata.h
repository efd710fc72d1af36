#pragma once

#include <QIcon>

#include <functional>

namespace sagomi {

/// An icon that is made when it is first looked at or painted. The first icon that the toolkit reads from a
/// file loads every plugin for pictures; a menu bar has one for a button that it hardly ever shows.
QIcon IconaRinviata(std::function<QIcon()> crea);

} // namespace sagomi
