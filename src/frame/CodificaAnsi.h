#pragma once

#include <string>
#include <string_view>

/// Text inside the program is UTF-8, text in its files Windows-1252.
namespace sagomi {

/// UTF-8 to Windows-1252. A character that does not exist there, or a byte that is no UTF-8, becomes '?'.
std::string AnsiDaUtf8(std::string_view testo);

/// Windows-1252 to UTF-8. The five bytes without a character become the control codes of the same number, and
/// come back as the same bytes.
std::string Utf8DaAnsi(std::string_view testo);

} // namespace sagomi
