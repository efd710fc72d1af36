#include "joints/RtfInHtml.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <set>
#include <vector>

#include "frame/CodificaAnsi.h"

namespace sagomi {

namespace {

constexpr std::size_t profonditaMassima = 200; ///< of groups; deeper ones count as one
constexpr int corpoBase = 22;                  ///< half points that are shown in the size of the box
constexpr int corpoMassimo = 200;
constexpr int rientroMassimo = 10000; ///< twips

enum class Livello : std::uint8_t { Base, Pedice, Apice };

/// How letters and paragraphs look inside a group.
struct Stato {
    bool grassetto = false, corsivo = false, sottolineato = false, nascosto = false;
    bool ignorato = false; ///< a table, or something unknown that may be left out
    bool tavolaFont = false;
    Livello livello = Livello::Base;
    int font = 0, corpo = corpoBase;
    int rientro = 0, prima = 0, dopo = 0; ///< of the paragraph [twips]
    int sostituti = 1;                    ///< letters that stand for one \uN

    bool operator==(const Stato&) const = default;
};

/// Signs of a font of symbols from 0x20, where they are others than those of the usual code.
constexpr std::u16string_view greche = u"ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ";
constexpr std::u16string_view grechePiccole = u"αβχδεφγηιϕκλμνοπθρστυϖωξψζ";

struct Simbolo {
    unsigned char codice;
    char16_t segno;
};
constexpr std::array<Simbolo, 21> simboli{
    {{0x27, u'∋'}, {0x2a, u'∗'}, {0x2d, u'−'}, {0x40, u'≅'}, {0x5e, u'⊥'}, {0xa3, u'≤'}, {0xa5, u'∞'},
     {0xae, u'→'}, {0xb0, u'°'}, {0xb1, u'±'}, {0xb3, u'≥'}, {0xb4, u'×'}, {0xb6, u'∂'}, {0xb7, u'•'},
     {0xb8, u'÷'}, {0xb9, u'≠'}, {0xba, u'≡'}, {0xbb, u'≈'}, {0xd6, u'√'}, {0xd7, u'⋅'}, {0xe5, u'∑'}}};

char32_t SegnoSimbolo(unsigned char c) {
    if (c >= 'A' && c <= 'Z')
        return greche[static_cast<std::size_t>(c - 'A')];
    if (c >= 'a' && c <= 'z')
        return grechePiccole[static_cast<std::size_t>(c - 'a')];
    for (const Simbolo& s : simboli)
        if (s.codice == c)
            return s.segno;
    return c < 0x80 ? c : U'?';
}

std::string Utf8(char32_t c) {
    const auto byte = [](char32_t v) { return static_cast<char>(static_cast<unsigned char>(v)); };
    if (c < 0x80)
        return {byte(c)};
    if (c < 0x800)
        return {byte(0xc0U | c >> 6U), byte(0x80U | (c & 0x3fU))};
    if (c >= 0xd800 && c < 0xe000)
        return "?"; // half of a pair
    return {byte(0xe0U | c >> 12U), byte(0x80U | (c >> 6U & 0x3fU)), byte(0x80U | (c & 0x3fU))};
}

std::optional<int> Esadecimale(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? std::optional<int>(c - 'A' + 10) : std::nullopt;
}

bool Lettera(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool Cifra(char c) { return c >= '0' && c <= '9'; }

/// The step of a rich text box that comes next to a size; empty for that of the box.
std::string_view MisuraHtml(int corpo) {
    const double rapporto = double(corpo) / corpoBase;
    if (rapporto >= 1.6)
        return "xx-large";
    if (rapporto >= 1.35)
        return "x-large";
    if (rapporto >= 1.15)
        return "large";
    return rapporto <= 0.92 ? "small" : "";
}

/// Puts the paragraphs together.
class Pagina {
public:
    void Testo(const Stato& stato, std::string_view html) {
        Prepara(stato);
        html_ += html;
    }
    void Paragrafo(const Stato& stato) {
        Apre(stato);
        Chiude();
        html_ += "</p>\n";
        aperto_ = false;
    }
    std::string Fine() {
        Chiude();
        if (aperto_)
            html_ += "</p>\n";
        return std::move(html_);
    }

private:
    void Apre(const Stato& s) {
        if (aperto_)
            return;
        const auto px = [](int twip) { return std::to_string(twip / 15); };
        html_ += "<p style=\"margin:" + px(s.prima) + "px 0px " + px(s.dopo) + "px " + px(s.rientro) + "px;";
        html_ += " white-space:pre-wrap;\">";
        aperto_ = true;
    }
    void Prepara(const Stato& s) {
        Apre(s);
        if (inForza_ && *inForza_ == s)
            return;
        Chiude();
        inForza_ = s;
        if (const std::string_view misura = MisuraHtml(s.corpo); !misura.empty())
            Marca("<span style=\"font-size:" + std::string(misura) + ";\">", "</span>");
        if (s.grassetto)
            Marca("<b>", "</b>");
        if (s.corsivo)
            Marca("<i>", "</i>");
        if (s.sottolineato)
            Marca("<u>", "</u>");
        if (s.livello != Livello::Base)
            s.livello == Livello::Pedice ? Marca("<sub>", "</sub>") : Marca("<sup>", "</sup>");
    }
    void Marca(const std::string& apre, const char* chiude) {
        html_ += apre;
        chiusure_.insert(0, chiude);
    }
    void Chiude() {
        html_ += chiusure_;
        chiusure_.clear();
        inForza_.reset();
    }

    std::string html_, chiusure_;
    std::optional<Stato> inForza_;
    bool aperto_ = false;
};

/// Walks over the text once.
class Lettore {
public:
    explicit Lettore(std::string_view rtf) : rtf_(rtf) {}

    std::string Legge();

private:
    void Passo();
    void ApreGruppo();
    void ChiudeGruppo();
    void Controllo();
    void Segno(char c);
    void Parola(std::string_view nome, std::optional<int> numero);
    bool ParolaTesto(std::string_view nome);
    bool ParolaStile(std::string_view nome, bool acceso, int numero);
    void Unicode(int codice);
    void Byte(unsigned char c);
    void Carattere(char32_t c);
    void Html(std::string_view html);
    [[nodiscard]] bool Saltato() { return daSaltare_ > 0 && daSaltare_-- > 0; }
    [[nodiscard]] bool Muto() const { return stato_.ignorato || stato_.nascosto; }

    std::string_view rtf_;
    std::size_t i_ = 0;
    Stato stato_;
    std::vector<Stato> gruppi_;
    std::size_t oltre_ = 0; ///< groups that are too deep to be kept
    int daSaltare_ = 0;     ///< letters in the place of a \uN
    bool inizioGruppo_ = false;
    std::set<int> fontSimboli_;
    Pagina pagina_;
};

std::string Lettore::Legge() {
    while (i_ < rtf_.size())
        Passo();
    return pagina_.Fine();
}

void Lettore::Passo() {
    const char c = rtf_[i_++];
    if (c == '{') {
        ApreGruppo();
        return;
    }
    if (c == '}')
        ChiudeGruppo();
    else if (c == '\\')
        Controllo();
    else if (c != '\r' && c != '\n' && c != '\0' && !Saltato())
        Byte(static_cast<unsigned char>(c));
    if (c != '\\')
        inizioGruppo_ = false;
}

void Lettore::ApreGruppo() {
    daSaltare_ = 0;
    if (gruppi_.size() < profonditaMassima)
        gruppi_.push_back(stato_);
    else
        ++oltre_;
    inizioGruppo_ = true;
}

void Lettore::ChiudeGruppo() {
    daSaltare_ = 0;
    if (oltre_ > 0) {
        --oltre_;
    } else if (!gruppi_.empty()) {
        stato_ = gruppi_.back();
        gruppi_.pop_back();
    }
}

void Lettore::Controllo() {
    if (i_ >= rtf_.size())
        return;
    if (!Lettera(rtf_[i_])) {
        Segno(rtf_[i_++]);
        return;
    }
    const std::size_t inizio = i_;
    while (i_ < rtf_.size() && Lettera(rtf_[i_]))
        ++i_;
    const std::string_view nome = rtf_.substr(inizio, i_ - inizio);
    const std::size_t cifre = i_;
    if (i_ + 1 < rtf_.size() && rtf_[i_] == '-' && Cifra(rtf_[i_ + 1]))
        ++i_;
    while (i_ < rtf_.size() && Cifra(rtf_[i_]))
        ++i_;
    std::optional<int> numero;
    int valore = 0;
    if (i_ > cifre && std::from_chars(rtf_.data() + cifre, rtf_.data() + i_, valore).ec == std::errc())
        numero = valore;
    if (i_ < rtf_.size() && rtf_[i_] == ' ')
        ++i_;
    Parola(nome, numero);
    inizioGruppo_ = false;
}

/// A control of one sign.
void Lettore::Segno(char c) {
    const bool gruppo = inizioGruppo_;
    if (c == '*') {
        stato_.ignorato = stato_.ignorato || gruppo; // what follows may be left out by who does not know it
        return;
    }
    inizioGruppo_ = false;
    if (c == '\'') {
        const auto alta = i_ < rtf_.size() ? Esadecimale(rtf_[i_]) : std::nullopt;
        const auto bassa = i_ + 1 < rtf_.size() ? Esadecimale(rtf_[i_ + 1]) : std::nullopt;
        if (!alta || !bassa)
            return;
        i_ += 2;
        if (!Saltato())
            Byte(static_cast<unsigned char>(*alta * 16 + *bassa));
        return;
    }
    if (c == '\r' || c == '\n')
        Parola("par", {});
    else if (c == '~')
        Carattere(0xa0);
    else if (c == '_')
        Carattere(0x2011);
    else if (c == '\\' || c == '{' || c == '}')
        Carattere(static_cast<char32_t>(c));
}

void Lettore::Parola(std::string_view nome, std::optional<int> numero) {
    constexpr std::array<std::string_view, 8> tavole{"colortbl", "stylesheet", "info",   "header",
                                                     "footer",   "pict",       "object", "fldinst"};
    if (nome == "u" && numero)
        Unicode(*numero);
    else if (nome == "fonttbl")
        stato_.tavolaFont = stato_.ignorato = true;
    else if (std::find(tavole.begin(), tavole.end(), nome) != tavole.end())
        stato_.ignorato = true;
    else if (nome == "fcharset" && stato_.tavolaFont && numero == 2)
        fontSimboli_.insert(stato_.font);
    else if (!ParolaTesto(nome))
        (void)ParolaStile(nome, numero.value_or(1) != 0, numero.value_or(0));
}

bool Lettore::ParolaTesto(std::string_view nome) {
    struct Nome {
        std::string_view nome;
        char32_t segno;
    };
    constexpr std::array<Nome, 8> segni{{{"tab", 9},
                                         {"emdash", 0x2014},
                                         {"endash", 0x2013},
                                         {"bullet", 0x2022},
                                         {"lquote", 0x2018},
                                         {"rquote", 0x2019},
                                         {"ldblquote", 0x201c},
                                         {"rdblquote", 0x201d}}};
    if (nome == "par") {
        if (!Muto())
            pagina_.Paragrafo(stato_);
        return true;
    }
    if (nome == "line") {
        Html("<br>");
        return true;
    }
    for (const Nome& s : segni)
        if (s.nome == nome) {
            Carattere(s.segno);
            return true;
        }
    return false;
}

bool Lettore::ParolaStile(std::string_view nome, bool acceso, int numero) {
    Stato& s = stato_;
    if (nome == "b")
        s.grassetto = acceso;
    else if (nome == "i")
        s.corsivo = acceso;
    else if (nome == "ul")
        s.sottolineato = acceso;
    else if (nome == "ulnone")
        s.sottolineato = false;
    else if (nome == "v")
        s.nascosto = acceso;
    else if (nome == "sub" || nome == "super")
        s.livello = !acceso ? Livello::Base : nome == "sub" ? Livello::Pedice : Livello::Apice;
    else if (nome == "nosupersub")
        s.livello = Livello::Base;
    else if (nome == "f")
        s.font = numero;
    else if (nome == "fs")
        s.corpo = std::clamp(numero, 2, corpoMassimo);
    else if (nome == "uc")
        s.sostituti = std::clamp(numero, 0, 10);
    else if (nome == "li")
        s.rientro = std::clamp(numero, 0, rientroMassimo);
    else if (nome == "sb")
        s.prima = std::clamp(numero, 0, rientroMassimo);
    else if (nome == "sa")
        s.dopo = std::clamp(numero, 0, rientroMassimo);
    else if (nome == "pard")
        s.rientro = s.prima = s.dopo = 0;
    else if (nome == "plain") {
        Stato nuovo;
        nuovo.ignorato = s.ignorato;
        nuovo.tavolaFont = s.tavolaFont;
        nuovo.rientro = s.rientro, nuovo.prima = s.prima, nuovo.dopo = s.dopo;
        nuovo.sostituti = s.sostituti;
        s = nuovo;
    } else
        return false;
    return true;
}

/// A letter by its number of 16 bits, those above 32767 with a minus; others stand after it for who does not
/// know it.
void Lettore::Unicode(int codice) {
    daSaltare_ = 0;
    Carattere(static_cast<char32_t>(static_cast<std::uint16_t>(codice)));
    daSaltare_ = stato_.sostituti;
}

void Lettore::Byte(unsigned char c) {
    if (fontSimboli_.count(stato_.font) > 0)
        Carattere(SegnoSimbolo(c));
    else if (c < 0x80)
        Carattere(c);
    else
        Html(Utf8DaAnsi(std::string(1, static_cast<char>(c))));
}

void Lettore::Carattere(char32_t c) {
    if (c == '<')
        Html("&lt;");
    else if (c == '>')
        Html("&gt;");
    else if (c == '&')
        Html("&amp;");
    else if (c >= 0x20 || c == '\t')
        Html(Utf8(c));
}

void Lettore::Html(std::string_view html) {
    if (!Muto())
        pagina_.Testo(stato_, html);
}

} // namespace

std::string HtmlDaRtf(std::string_view rtf) { return Lettore(rtf).Legge(); }

} // namespace sagomi
