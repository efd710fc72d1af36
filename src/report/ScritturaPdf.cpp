#include "report/ScritturaPdf.h"

#include <stdexcept>
#include <utility>

#include "report/Relazione.h"

namespace sagomi {

namespace {

ScritturaPdf& InForza() {
    static ScritturaPdf scrittura;
    return scrittura;
}

} // namespace

void ImpostaScritturaPdf(ScritturaPdf scrittura) { InForza() = std::move(scrittura); }

void ScrivePdf(const Relazione& relazione, const std::filesystem::path& file) {
    if (!InForza())
        throw std::runtime_error("questo programma non scrive PDF");
    InForza()(relazione, file);
}

} // namespace sagomi
