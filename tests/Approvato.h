#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

namespace sagomi::prove {

/// Holds bytes against a file of tests/data that a person has looked at. What differs is left under the same
/// name in a folder "ottenuti" beside the programs; with SAGOMI_APPROVA set, it becomes the approved file.
inline void ConfrontaApprovato(const std::string& file, const std::string& byte) {
    namespace fs = std::filesystem;
    const auto scrive = [&byte](const fs::path& percorso) {
        fs::create_directories(percorso.parent_path());
        std::ofstream(percorso, std::ios::binary) << byte;
    };
    const fs::path approvato = fs::path(SAGOMI_TEST_DATA) / file;
    const fs::path ottenuto = fs::path(SAGOMI_BIN) / "ottenuti" / file;
    if (std::getenv("SAGOMI_APPROVA") != nullptr)
        scrive(approvato);
    std::ifstream f(approvato, std::ios::binary);
    const std::string atteso{std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
    if (byte == atteso)
        return;
    scrive(ottenuto);
    FAIL() << "differs from " << approvato << "; what came out is " << ottenuto
           << "\nafter a look at it, run the test again with SAGOMI_APPROVA=1";
}

} // namespace sagomi::prove
