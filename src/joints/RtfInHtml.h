#pragma once

#include <string>
#include <string_view>

namespace sagomi {

/// A text in RTF as HTML (UTF-8), for a rich text box: paragraphs with their indent and space, line breaks,
/// tabs, bold, italic, underlined, sub- and superscript, sizes, letters as \'xx (Windows-1252) and \uN, the
/// signs of a font of symbols (charset 2). Hidden text and what stands in tables of fonts, colours and styles
/// is left out, so are words that the reader does not know. Any bytes give a text; nothing is thrown.
[[nodiscard]] std::string HtmlDaRtf(std::string_view rtf);

} // namespace sagomi
