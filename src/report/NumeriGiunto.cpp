#include "report/NumeriGiunto.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <numbers>
#include <string_view>

#include "frame/GeneraleSagomi.h"
#include "joints/Giunto.h"
#include "report/Figure.h"

namespace sagomi {

namespace {

constexpr double mille = 1000; // N to kN

/// A formula with its numbers, and what these give.
struct Conto {
    std::string formula, numeri;
    double valore = std::numeric_limits<double>::quiet_NaN();
};

class Contatore {
public:
    Contatore(const PassoGiunto& passo, std::span<const PassoGiunto> prima, const Giunto& giunto)
        : passo_(passo), prima_(prima), g_(giunto) {}

    [[nodiscard]] Conto Conta() const {
        if (!g_.Trave || !g_.Colonna)
            return {};
        const std::string_view nome = passo_.nome;
        if (nome == "Bt")
            return Bullone();
        if (nome == "Mpl")
            return MomentoPlastico();
        if (nome.starts_with("Modo "))
            return Modo(nome.back());
        if (nome == "MplRdGIUNTO" || nome == "M_elastico")
            return Momento(nome);
        if (!prima_.empty() && prima_.back().nome == "Modo 3")
            return Minimo();
        return Anima(nome);
    }

private:
    /// The latest value of a name, of the same component or of any.
    [[nodiscard]] double Prima(std::string_view nome, bool ovunque = false) const {
        for (std::size_t i = prima_.size(); i-- > 0;)
            if (prima_[i].nome == nome && (ovunque || prima_[i].componente == passo_.componente))
                return prima_[i].valore;
        return std::numeric_limits<double>::quiet_NaN();
    }

    [[nodiscard]] Conto Bullone() const {
        return {"0,9 f{ub} A{s} / γ{M2}",
                "0,9 · " + Piano(g_.fubl) + " · " + Cifre(g_.Areares) + " / " + Piano(GammaM2) + " · 10^{-3}",
                0.9 * g_.fubl * g_.Areares / GammaM2 / mille};
    }

    /// Of the flange of the column, which its stress reduces, or of the plate, which has the grade of the
    /// beam.
    [[nodiscard]] Conto MomentoPlastico() const {
        const bool colonna = passo_.componente.starts_with("Ala della colonna");
        const double t = colonna ? double(g_.Colonna->tf) : double(g_.tf);
        const double fy = colonna ? g_.Colonna->fy : g_.Trave->fy;
        const double leff = Prima("leff");
        const double Kfc = colonna ? double(g_.Kfc) : 1;
        return {colonna ? "0,25 l{eff} t{f,c}^{2} f{y,c} K{fc} / γ{M0}"
                        : "0,25 l{eff} t{f}^{2} f{y,b} / γ{M0}",
                "0,25 · " + InFormula(leff) + " · " + Cifre(t) + "^{2} · " + Cifre(fy) +
                    (colonna ? " · " + Cifre(Kfc) : std::string()) + " / " + Piano(GammaM0) + " · 10^{-3}",
                0.25 * leff * t * t * fy * Kfc / GammaM0 / mille};
    }

    /// Of a T-stub: the plate alone, plate and bolts, the bolts alone.
    [[nodiscard]] Conto Modo(char quale) const {
        const double Mpl = Prima("Mpl");
        const double m = Prima("m");
        const double n = Prima("n");
        const double Bt = Prima("Bt", true);
        const double nb = passo_.componente.ends_with("gruppo") ? 4 : 2; // bolts
        const std::string momento = InFormula(Mpl);
        if (quale == '1')
            return {"4 M{pl,Rd} / m", "4 · " + momento + " / " + Cifre(m), 4 * Mpl / m};
        if (quale == '2')
            return {"(2 M{pl,Rd} + n ΣB{t,Rd}) / (m + n)",
                    "(2 · " + momento + " + " + Cifre(n) + " · " + Cifre(nb) + " · " + Cifre(Bt) + ") / (" +
                        Cifre(m) + " + " + Cifre(n) + ")",
                    (2 * Mpl + n * nb * Bt) / (m + n)};
        return {"ΣB{t,Rd}", Cifre(nb) + " · " + Cifre(Bt), nb * Bt};
    }

    [[nodiscard]] Conto Minimo() const {
        const double uno = Prima("Modo 1");
        const double due = Prima("Modo 2");
        const double tre = Prima("Modo 3");
        return {"min(F{t,1,Rd}; F{t,2,Rd}; F{t,3,Rd})",
                "min(" + InFormula(uno) + "; " + InFormula(due) + "; " + InFormula(tre) + ")",
                std::min({uno, due, tre})};
    }

    [[nodiscard]] Conto Momento(std::string_view nome) const {
        if (nome == "M_elastico") {
            const double M = Prima("MplRdGIUNTO");
            return {{}, "2 / 3 · " + Cifre(M), 2.0 / 3 * M};
        }
        const bool due = g_.nf == 2;
        const double esterna = due ? Prima("zEst", true) * Prima("FtRd_EffSup", true) : 0;
        return {{},
                (due ? "(" + Coppia("zEst", "FtRd_EffSup") + " + " : std::string()) +
                    Coppia("zInt", "FtRd_EffInf") + (due ? ")" : "") + " · 10^{-3}",
                (esterna + Prima("zInt", true) * Prima("FtRd_EffInf", true)) / mille};
    }

    [[nodiscard]] std::string Coppia(std::string_view a, std::string_view b) const {
        return Cifre(Prima(a, true)) + " · " + Cifre(Prima(b, true));
    }

    /// A length of a web at a stress, or its area in shear, in the order of the formulas.
    [[nodiscard]] Conto Anima(std::string_view nome) const {
        const SezioneDoppioT& c = *g_.Colonna;
        const SezioneDoppioT& b = *g_.Trave;
        const double beff = Prima("beff");
        if (nome == "FtRd_Anima_c")
            return Prodotto({beff, c.tw, c.fy}, GammaM0);
        if (nome == "FtRd_Anima_t")
            return Prodotto({b.tw, b.fy, Prima("leffInterna")}, GammaM0);
        if (nome == "FcRd_Anima_c")
            return Prodotto({g_.Kwc, c.tw, c.fy, beff}, GammaM0);
        if (nome == "NbRd_Anima_c")
            return Prodotto({c.tw, beff, Prima("fd")}, Singolo(1));
        if (nome == "VplRd_Pannello_c")
            return {{},
                    Cifre(c.fy) + " · " + InFormula(Prima("Avc")) + " / (√3 · " + Piano(GammaM0) + " · " +
                        Cifre(g_.Beta) + ") · 10^{-3}",
                    c.fy * Prima("Avc") / (std::numbers::sqrt3 * GammaM0 * g_.Beta) / mille};
        return {};
    }

    [[nodiscard]] static Conto Prodotto(std::initializer_list<double> fattori, Singolo gamma) {
        Conto conto{{}, {}, 1 / gamma / mille};
        for (const double f : fattori) {
            conto.numeri += (conto.numeri.empty() ? "" : " · ") + InFormula(f);
            conto.valore *= f;
        }
        conto.numeri += (gamma == 1 ? "" : " / " + Piano(gamma)) + " · 10^{-3}";
        return conto;
    }

    const PassoGiunto& passo_;
    std::span<const PassoGiunto> prima_;
    const Giunto& g_;
};

} // namespace

NumeriPasso NumeriDi(const PassoGiunto& passo, std::span<const PassoGiunto> prima, const Giunto& giunto) {
    constexpr double scarto = 1e-5; // of fields in single precision
    Conto conto = Contatore(passo, prima, giunto).Conta();
    if (!(std::abs(conto.valore - passo.valore) <= scarto * std::abs(passo.valore)))
        conto.numeri.clear(); // partial factors have changed since
    return {std::move(conto.formula), std::move(conto.numeri)};
}

} // namespace sagomi
