#include "catalogue/Csv.h"

#include <cstddef>
#include <utility>

namespace sagomi {

namespace {

class LettoreCsv {
public:
    explicit LettoreCsv(std::string_view testo) : testo_(testo) {
        constexpr std::string_view segnoOrdine = "\xEF\xBB\xBF";
        if (testo_.starts_with(segnoOrdine))
            testo_.remove_prefix(segnoOrdine.size());
    }

    std::vector<std::vector<std::string>> Legge() {
        while (i_ < testo_.size())
            Carattere(testo_[i_++]);
        FineRiga();
        return std::move(righe_);
    }

private:
    void Carattere(char c) {
        if (traVirgolette_)
            Virgolettato(c);
        else if (c == '"' && campo_.empty())
            ApreVirgolette();
        else if (c == ',')
            FineCampo();
        else if (c == '\n' || c == '\r')
            FineRiga();
        else
            campo_.push_back(c);
    }

    void ApreVirgolette() {
        traVirgolette_ = true;
        piena_ = true;
    }

    void Virgolettato(char c) {
        if (c != '"') {
            campo_.push_back(c);
        } else if (i_ < testo_.size() && testo_[i_] == '"') {
            campo_.push_back('"');
            ++i_;
        } else {
            traVirgolette_ = false;
        }
    }

    void FineCampo() {
        riga_.push_back(std::exchange(campo_, {}));
        piena_ = true;
    }

    /// A line without a comma, a quote or a character is no line.
    void FineRiga() {
        if (!piena_ && campo_.empty())
            return;
        FineCampo();
        righe_.push_back(std::exchange(riga_, {}));
        piena_ = false;
    }

    std::string_view testo_;
    std::size_t i_ = 0;
    bool traVirgolette_ = false;
    bool piena_ = false;
    std::string campo_;
    std::vector<std::string> riga_;
    std::vector<std::vector<std::string>> righe_;
};

} // namespace

std::vector<std::vector<std::string>> LeggeCsv(std::string_view testo) { return LettoreCsv(testo).Legge(); }

} // namespace sagomi
