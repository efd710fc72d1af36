#include "choice/NomiVicini.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <random>

using namespace sagomi;

namespace {

using Nomi = std::vector<std::string>;

/// By the definition: equal letters count nothing; else one is changed, left out or put in.
std::size_t PerDefinizione(std::string_view a, std::string_view b) {
    if (a.empty() || b.empty())
        return a.size() + b.size();
    const std::string_view restoA = a.substr(1), restoB = b.substr(1);
    if (a[0] == b[0])
        return PerDefinizione(restoA, restoB);
    return 1 +
           std::min({PerDefinizione(restoA, restoB), PerDefinizione(restoA, b), PerDefinizione(a, restoB)});
}

/// All words of two letters, up to five of them.
Nomi Parole() {
    Nomi words{""};
    for (std::size_t i = 0; i < words.size(); ++i)
        if (words[i].size() < 5)
            for (const char c : {'a', 'b'})
                words.push_back(words[i] + c);
    return words;
}

TEST(NomiVicini, ADistanceIsTheFewestChanges) {
    const Nomi words = Parole();
    ASSERT_EQ(words.size(), 63U);
    for (const std::string& a : words)
        for (const std::string& b : words)
            ASSERT_EQ(Distanza(a, b), PerDefinizione(a, b)) << a << ' ' << b;
    EXPECT_EQ(Distanza("--verifca", "--verifica"), 1U);
    EXPECT_EQ(Distanza("trave", "travi mista"), 7U);
}

std::string Senza(const std::string& name) {
    std::string s;
    for (const char c : name)
        if (c != ' ')
            s += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

/// Those at the least distance, in their order, each once, three at most.
Nomi PiuVicini(const std::string& name, const Nomi& names) {
    std::size_t least = Senza(name).size() / 2;
    for (const std::string& other : names)
        least = std::min(least, PerDefinizione(Senza(name), Senza(other)));
    Nomi nearest;
    for (const std::string& other : names)
        if (PerDefinizione(Senza(name), Senza(other)) == least && std::ranges::count(nearest, other) == 0 &&
            nearest.size() < 3)
            nearest.push_back(other);
    return nearest;
}

TEST(NomiVicini, TheNearestAreToldEachOnceAndThreeAtMost) {
    std::mt19937 random(1);
    const auto word = [&random] {
        std::string w;
        for (std::size_t i = 0, n = random() % 6; i < n; ++i)
            w += "aAbB cd"[random() % 7];
        return w;
    };
    for (int run = 0; run < 2000; ++run) {
        Nomi names(random() % 12);
        std::ranges::generate(names, word);
        const std::string name = word();
        ASSERT_EQ(NomiVicini(name, names), PiuVicini(name, names)) << name << " among " << Elencati(names);
    }
}

TEST(NomiVicini, ANameOfMegabytesIsNearNoneAtOnce) {
    const Nomi names(1200, "IPE 300");
    EXPECT_EQ(NomiVicini(std::string(std::size_t{1} << 24U, 'I'), names), Nomi{});
    EXPECT_EQ(NomiVicini("IPE 300 IPE 300", names), Nomi{"IPE 300"}); // 6 of 12 letters are too many
}

TEST(NomiVicini, NamesAreComparedInSmallLettersWithoutBlanks) {
    EXPECT_EQ(Piegato(" HEA 200 A"), "hea200a");
    EXPECT_EQ(NomiVicini("ipe301", {"HEA 300", "IPE 300", "IPE 3000"}), Nomi{"IPE 300"});
    EXPECT_EQ(Elencati({"IPE", "HEA", "UPN"}), "IPE, HEA, UPN");
    EXPECT_EQ(Elencati({"IPE"}), "IPE");
    EXPECT_EQ(Elencati({}), "");
}

} // namespace
