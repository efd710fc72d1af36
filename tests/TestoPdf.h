#pragma once

#include <array>
#include <cstdio>
#include <memory>
#include <string>

namespace sagomi::prove {

/// Whether the reader of PDF was found when the tests were built.
inline bool ConLettorePdf() { return std::string(SAGOMI_PDFTOTEXT).find('/') != std::string::npos; }

/// What it finds in a file, line by line.
inline std::string TestoPdf(const std::string& file) {
    const std::string comando = std::string(SAGOMI_PDFTOTEXT) + " -layout '" + file + "' -";
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(comando.c_str(), "r"), pclose);
    std::string testo;
    std::array<char, 4096> pezzo{};
    while (const std::size_t n = std::fread(pezzo.data(), 1, pezzo.size(), pipe.get()))
        testo.append(pezzo.data(), n);
    return testo;
}

} // namespace sagomi::prove
