#include "report/FormuleRelazione.h"

#include <utility>

#include "joints/FormuleGiunto.h"
#include "joints/RtfInHtml.h"

namespace sagomi {

namespace {

/// A paragraph of HTML as markup, its bold part apart.
struct Paragrafo {
    std::string testo, grassetto;
};

void Sostituisce(std::string& testo, std::string_view da, std::string_view a) {
    for (std::size_t i = testo.find(da); i != std::string::npos; i = testo.find(da, i + a.size()))
        testo.replace(i, da.size(), a);
}

/// Braces for sub- and superscripts; every other tag goes.
class LettoreHtml {
public:
    Paragrafo Legge(std::string_view html) {
        for (std::size_t apre = html.find('<'); apre != std::string_view::npos; apre = html.find('<')) {
            const std::size_t chiude = html.find('>', apre);
            if (chiude == std::string_view::npos)
                break;
            Scrive(html.substr(0, apre));
            Marca(html.substr(apre + 1, chiude - apre - 1));
            html.remove_prefix(chiude + 1);
        }
        Scrive(html);
        for (std::string* testo : {&p_.testo, &p_.grassetto})
            for (const auto& [da, a] :
                 {std::pair("&lt;", "<"), {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}})
                Sostituisce(*testo, da, a);
        return std::move(p_);
    }

private:
    void Scrive(std::string_view testo) { (grassetto_ ? p_.grassetto : p_.testo) += testo; }
    void Marca(std::string_view tag) {
        if (tag == "b" || tag == "/b")
            grassetto_ = tag == "b";
        else if (tag == "sub")
            Scrive("{");
        else if (tag == "sup")
            Scrive("^{");
        else if (tag == "/sub" || tag == "/sup")
            Scrive("}");
    }

    Paragrafo p_;
    bool grassetto_ = false;
};

std::string Nudo(std::string_view testo) {
    const std::size_t da = testo.find_first_not_of(" \t\r\n");
    return da == std::string_view::npos
               ? std::string()
               : std::string(testo.substr(da, testo.find_last_not_of(" \t\r\n") - da + 1));
}

/// Formulas are the paragraphs with an indent.
bool Rientrato(std::string_view apertura) {
    constexpr std::string_view margine = "margin:";
    const std::size_t a = apertura.find(margine);
    const std::size_t fine = a == std::string_view::npos ? a : apertura.find(';', a);
    return fine != std::string_view::npos && !apertura.substr(a, fine - a).ends_with(" 0px");
}

void Prende(FormulaQuantita& f, const Paragrafo& p, bool rientrato) {
    if (f.simbolo.empty() && !p.grassetto.empty()) {
        f.simbolo = Nudo(p.grassetto);
        f.descrizione = Nudo(p.testo);
    } else if (rientrato) {
        f.formula += (f.formula.empty() ? "" : "\n") + Nudo(p.grassetto + p.testo);
    }
}

} // namespace

std::optional<FormulaQuantita> FormulaDi(std::string_view rtf, std::string_view id) {
    const std::optional<std::string> blocco = TestoFormula(rtf, id);
    if (!blocco)
        return std::nullopt;
    const std::string html = HtmlDaRtf(*blocco);
    FormulaQuantita f;
    for (std::size_t apre = html.find("<p"); apre != std::string::npos; apre = html.find("<p", apre + 1)) {
        const std::size_t testo = html.find('>', apre);
        const std::size_t fine = html.find("</p>", apre);
        if (testo == std::string::npos || fine == std::string::npos)
            break;
        const std::string_view tutto(html);
        Prende(f, LettoreHtml().Legge(tutto.substr(testo + 1, fine - testo - 1)),
               Rientrato(tutto.substr(apre, testo - apre)));
    }
    return f;
}

} // namespace sagomi
