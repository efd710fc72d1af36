#include "choice/OpzioniToolkit.h"

#include <algorithm>
#include <iterator>

namespace sagomi {

namespace {

constexpr std::string_view conValore[] = {
    "style",         "stylesheet", "platform",        "platformpluginpath",
    "platformtheme", "plugin",     "qwindowtitle",    "qwindowicon",
    "session",       "display",    "qwindowgeometry", "geometry",
    "title",         "icon",       "desktopFileName", "name",
    "visual",        "fontengine"};

constexpr std::string_view senza[] = {"widgetcount", "reverse", "qmljsdebugger", "testability",
                                      "nograb",      "dograb",  "sync"};

} // namespace

std::optional<std::size_t> ValoriNelToolkit(std::string_view argomento) {
    if (!argomento.starts_with('-'))
        return std::nullopt;
    argomento.remove_prefix(argomento.starts_with("--") ? 2 : 1);
    const std::size_t uguale = argomento.find('=');
    const std::string_view nome = argomento.substr(0, uguale);
    if (std::ranges::find(conValore, nome) != std::end(conValore))
        return uguale == std::string_view::npos ? 1 : 0;
    if (std::ranges::find(senza, nome) != std::end(senza))
        return 0;
    return std::nullopt;
}

} // namespace sagomi
