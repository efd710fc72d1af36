#include "report/ui/BlocchiRelazione.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include "drawing/Grafica.h"
#include "drawing/ui/SuperficieQt.h"
#include "frame/Numeri.h"
#include "report/Relazione.h"
#include "report/ui/TestoMarcato.h"

namespace sagomi {

namespace {

constexpr double mmPollice = 25.4;
constexpr double larghezzaScritta = 175; ///< between the margins of a page A4 [mm]

// Columns of the steps, from the left margin [mm].
constexpr double xFormula = 50;
constexpr double xValore = 128; ///< of the decimal separator
constexpr double xUnita = 141;
constexpr double xNorma = 153;
constexpr double stacco = 2.5; ///< between columns
constexpr double sopraRiga = 0.8;

// Columns of the data, which stand in two halves [mm].
constexpr double mezza = 90;
constexpr double xSimbolo = 45;
constexpr double xDato = 66;
constexpr double xUnitaDato = 76;

QString Q(const std::string& testo) { return QString::fromStdString(testo); }

QFont Carattere(const QStringList& famiglie, double corpo, bool grassetto = false) {
    QFont font;
    font.setFamilies(famiglie);
    font.setPointSizeF(corpo);
    font.setBold(grassetto);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.02); // no ligatures, which a search would not find
    return font;
}

/// Whether a value is a number, which stands in the column of values.
bool ENumero(const std::string& valore) {
    const std::string_view cifre = "0123456789";
    const std::size_t prima = valore.find_first_not_of("-−> ");
    const bool numero = prima != std::string::npos && cifre.find(valore[prima]) != std::string_view::npos;
    return numero && valore.find_first_not_of("0123456789.,'E+-−> ") == std::string::npos;
}

/// What lies to the left of the decimal separator, or all of it.
QString Interi(const QString& numero) {
    const QString separatore = Q(Utf8DaCodice(CarDecimale));
    const qsizetype i = numero.indexOf(separatore);
    return i < 0 ? numero : numero.left(i);
}

/// A part of a page that a drawing has for itself.
class SuperficieRiquadro : public SuperficieQt {
public:
    SuperficieRiquadro(QPainter& pittore, const StileRelazione& stile, const QSizeF& misura)
        : SuperficieQt(pittore, [&] {
              constexpr double filo = 0.18; // mm, lines of DrawWidth 1
              Carta carta;
              carta.misura = misura;
              carta.unita = stile.unita;
              carta.spessoreUnita = filo * stile.unita;
              carta.carattere = stile.testo;
              carta.inchiostro = Qt::black;
              return carta;
          }()) {}
};

/// Paints the parts of pieces. Pieces keep a copy of it.
class Pennello {
public:
    explicit Pennello(const StileRelazione& stile) : stile_(&stile) {}

    [[nodiscard]] const StileRelazione& Stile() const { return *stile_; }
    [[nodiscard]] double mm(double millimetri) const { return stile_->mm(millimetri); }
    [[nodiscard]] TestoMarcato Parole(const std::string& testo, const QFont& font, double larghezza) const {
        return {Q(testo), font, StileMarcato::Parole, mm(larghezza), stile_->carta};
    }
    [[nodiscard]] TestoMarcato Formula(const std::string& testo, double larghezza) const {
        return {Q(testo), stile_->formula, StileMarcato::Formula, mm(larghezza), stile_->carta};
    }

    void Valore(QPainter& p, QPointF angolo, double x, const std::string& valore) const;
    void Dato(QPainter& p, QPointF angolo, const PassoRelazione& passo) const;
    void Verdetto(QPainter& p, const QRectF& riquadro, const VerdettoRelazione& v) const;
    void Disegno(QPainter& p, const Relazione& r, const QRectF& riquadro) const;

private:
    [[nodiscard]] QColor ColoreEsito(EsitoRelazione esito) const;
    [[nodiscard]] std::string SottoVerdetto(const VerdettoRelazione& v) const;
    void Utilizzo(QPainter& p, const QRectF& riquadro, double utilizzo, const QColor& colore) const;

    const StileRelazione* stile_;
};

/// Writes the pieces of a report.
class Compositore {
public:
    explicit Compositore(const StileRelazione& stile) : pen_(stile), s_(stile) {}

    void Testa(const Relazione& r);
    void Capitolo(const CapitoloRelazione& c);
    void Avvisi(const std::vector<std::string>& avvisi);
    [[nodiscard]] Blocchi Presi() && { return std::move(blocchi_); }

private:
    void Aggiunge(double altezza, bool conIlSeguente, std::function<void(QPainter&, QPointF)> dipinge) {
        blocchi_.append({altezza, conIlSeguente, std::move(dipinge)});
    }
    void Spazio(double millimetri) {
        Aggiunge(pen_.mm(millimetri), true, [](QPainter&, QPointF) {});
    }
    /// No line of a chapter stands alone at the foot or at the head of a page.
    void TieneInsieme(qsizetype primo, bool conLeNote) {
        const qsizetype rows = blocchi_.size() - primo;
        if (rows > 1)
            blocchi_[primo].conIlSeguente = blocchi_[primo + rows - 2].conIlSeguente = true;
        if (rows > 0 && conLeNote)
            blocchi_.last().conIlSeguente = true;
    }
    void Titolo(const QString& testo, const QFont& font, const QColor& colore, bool filo);
    void TestaDisegnata(const Relazione& r, const std::vector<VerdettoRelazione>& verdetti);
    void DueColonne(const std::vector<PassoRelazione>& passi);
    void Passo(const PassoRelazione& passo);
    void Paragrafo(const QString& testo, const QColor& colore);
    void Verdetto(const VerdettoRelazione& v);

    Pennello pen_;
    const StileRelazione& s_;
    Blocchi blocchi_;
};

void Pennello::Disegno(QPainter& pittore, const Relazione& r, const QRectF& riquadro) const {
    pittore.save();
    pittore.setClipRect(riquadro);
    pittore.translate(riquadro.topLeft());
    {
        const StatoUscita prima;
        SuperficieRiquadro superficie(pittore, *stile_, riquadro.size());
        Dispositivo = dispositivoStampante;
        OggettoGrafico = &superficie;
        ColorePenna = pennaInchiostro;
        r.disegno.PlottaInOggetto(&superficie, r.maschera);
    }
    pittore.restore();
}

QColor Pennello::ColoreEsito(EsitoRelazione esito) const {
    return esito == EsitoRelazione::Passa      ? stile_->passa
           : esito == EsitoRelazione::NonPassa ? stile_->nonPassa
                                               : stile_->grigio;
}

void Compositore::Titolo(const QString& testo, const QFont& font, const QColor& colore, bool filo) {
    const auto text =
        std::make_shared<TestoMarcato>(testo, font, StileMarcato::Parole, s_.larghezza, s_.carta);
    const double below = s_.mm(filo ? 2.2 : 0.5);
    Aggiunge(text->Altezza() + below, true, [pen = pen_, text, colore, filo](QPainter& p, QPointF at) {
        p.setPen(colore);
        text->Dipinge(p, at);
        if (!filo)
            return;
        const double y = at.y() + text->Altezza() + pen.mm(0.6);
        p.setPen(QPen(pen.Stile().accento, pen.mm(0.25)));
        p.drawLine(QPointF(at.x(), y), QPointF(at.x() + pen.Stile().larghezza, y));
    });
}

/// Title, then the drawing with the verdicts.
void Compositore::Testa(const Relazione& r) {
    Titolo(Q(r.titolo), s_.nota, s_.grigio, false);
    Titolo(Q(r.oggetto), s_.titolo, s_.accento, false);
    Spazio(2);
    std::vector<VerdettoRelazione> verdetti;
    for (const CapitoloRelazione& c : r.capitoli)
        if (c.verdetto)
            verdetti.push_back(*c.verdetto);
    if (r.disegno.PlottaInOggetto)
        TestaDisegnata(r, verdetti);
    else
        for (const VerdettoRelazione& v : verdetti)
            Verdetto(v);
}

/// A section stands beside the verdicts; a sheet with texts of its own takes the whole width.
void Compositore::TestaDisegnata(const Relazione& r, const std::vector<VerdettoRelazione>& verdetti) {
    constexpr double largo = 92;
    constexpr double alto = 88;
    constexpr double altoFoglio = 118;
    const bool foglio = r.maschera == "frmGiunti" || r.maschera == "frmAcciaioCls";
    const double width = foglio ? larghezzaScritta : largo;
    const double height = foglio ? altoFoglio : alto;
    const auto shown = std::make_shared<Relazione>(r);
    const auto beside = foglio ? std::vector<VerdettoRelazione>() : verdetti;
    Aggiunge(pen_.mm(height), false, [pen = pen_, shown, beside, width, height](QPainter& p, QPointF at) {
        constexpr double bordo = 2;
        constexpr double alta = 16; // of a verdict
        const double left = larghezzaScritta - width;
        const QRectF box(at.x() + pen.mm(left), at.y(), pen.mm(width), pen.mm(height));
        p.setPen(QPen(pen.Stile().filo, pen.mm(0.2)));
        p.setBrush(Qt::NoBrush);
        p.drawRect(box);
        const double in = pen.mm(bordo);
        pen.Disegno(p, *shown, box.adjusted(in, in, -in, -in));
        for (const VerdettoRelazione& v : beside) {
            pen.Verdetto(p, QRectF(at.x(), at.y(), pen.mm(left - 2 * bordo), pen.mm(alta)), v);
            at.ry() += pen.mm(alta + bordo);
        }
    });
    Spazio(3);
    if (foglio)
        for (const VerdettoRelazione& v : verdetti)
            Verdetto(v);
}

/// A number with its separator at x, its unit's place is the caller's.
void Pennello::Valore(QPainter& p, QPointF angolo, double x, const std::string& valore) const {
    const QFontMetricsF metrics(stile_->testo, stile_->carta);
    const QString text = Q(valore);
    const TestoMarcato number = Parole(valore, stile_->testo, 0);
    number.Dipinge(p, angolo + QPointF(mm(x) - metrics.horizontalAdvance(Interi(text)), 0));
}

void Pennello::Dato(QPainter& p, QPointF angolo, const PassoRelazione& passo) const {
    p.setPen(stile_->grigio);
    const bool numero = ENumero(passo.valore);
    Parole(passo.descrizione, stile_->nota, xSimbolo - stacco).Dipinge(p, angolo);
    p.setPen(stile_->inchiostro);
    Formula(passo.simbolo, 0).Dipinge(p, angolo + QPointF(mm(xSimbolo), 0));
    if (numero)
        Valore(p, angolo, xDato, passo.valore);
    else
        Parole(passo.valore, stile_->testo, mezza - xSimbolo).Dipinge(p, angolo + QPointF(mm(xSimbolo), 0));
    Parole(passo.unita, stile_->nota, 0).Dipinge(p, angolo + QPointF(mm(xUnitaDato), 0));
}

/// Entries, the first half at the left.
void Compositore::DueColonne(const std::vector<PassoRelazione>& passi) {
    const std::size_t rows = (passi.size() + 1) / 2;
    for (std::size_t i = 0; i < rows; ++i) {
        std::vector<PassoRelazione> row{passi[i]};
        if (i + rows < passi.size())
            row.push_back(passi[i + rows]);
        double height = 0;
        for (const PassoRelazione& d : row)
            height = std::max({height, pen_.Parole(d.descrizione, s_.nota, xSimbolo - stacco).Altezza(),
                               pen_.Formula(d.simbolo + "x", 0).Altezza()});
        Aggiunge(height + s_.mm(sopraRiga / 2), false, [pen = pen_, row](QPainter& p, QPointF at) {
            for (std::size_t k = 0; k < row.size(); ++k)
                pen.Dato(p, at + QPointF(pen.mm(mezza * static_cast<double>(k)), 0), row[k]);
        });
    }
}

void Compositore::Passo(const PassoRelazione& passo) {
    constexpr double margine = 12; // of the integers of a value
    const double formulaWide = xValore - margine - xFormula - stacco;
    std::string prima = passo.simbolo;
    if (!passo.formula.empty())
        prima += (prima.empty() || passo.formula.starts_with('\n') ? "" : " = ") + passo.formula;
    const bool numero = ENumero(passo.valore);
    const auto words =
        std::make_shared<TestoMarcato>(pen_.Parole(passo.descrizione, s_.nota, xFormula - stacco));
    const auto first = std::make_shared<TestoMarcato>(pen_.Formula(prima, formulaWide));
    const auto second = std::make_shared<TestoMarcato>(
        pen_.Formula(passo.numeri.empty() ? std::string() : "= " + passo.numeri, formulaWide));
    const auto clause =
        std::make_shared<TestoMarcato>(pen_.Parole(passo.norma, s_.nota, larghezzaScritta - xNorma));
    const double symbol = prima.empty() ? 0 : pen_.Formula(prima, 0).Larghezza() + s_.mm(stacco);
    const auto word = std::make_shared<TestoMarcato>(
        pen_.Parole(numero ? std::string() : passo.valore, s_.testo,
                    std::max(20.0, (xNorma - xFormula - stacco) - symbol / s_.unita)));
    const double height = std::max({words->Altezza(), first->Altezza() + second->Altezza(), clause->Altezza(),
                                    word->Altezza()}) +
                          s_.mm(sopraRiga * 2);
    Aggiunge(height, false,
             [=, pen = pen_, value = passo.valore, unit = passo.unita](QPainter& p, QPointF at) {
                 p.setPen(QPen(pen.Stile().filo, pen.mm(0.12)));
                 p.drawLine(at, QPointF(at.x() + pen.Stile().larghezza, at.y()));
                 at.ry() += pen.mm(sopraRiga);
                 p.setPen(pen.Stile().grigio);
                 words->Dipinge(p, at);
                 clause->Dipinge(p, at + QPointF(pen.mm(xNorma), 0));
                 p.setPen(pen.Stile().inchiostro);
                 first->Dipinge(p, at + QPointF(pen.mm(xFormula), 0));
                 second->Dipinge(p, at + QPointF(pen.mm(xFormula), first->Altezza()));
                 if (!numero) {
                     word->Dipinge(p, at + QPointF(pen.mm(xFormula) + symbol, 0));
                     return;
                 }
                 pen.Valore(p, at, xValore, value);
                 pen.Parole(unit, pen.Stile().nota, 0).Dipinge(p, at + QPointF(pen.mm(xUnita), 0));
             });
}

void Compositore::Paragrafo(const QString& testo, const QColor& colore) {
    const auto text =
        std::make_shared<TestoMarcato>(testo, s_.testo, StileMarcato::Parole, s_.larghezza, s_.carta);
    Aggiunge(text->Altezza() + s_.mm(1), false, [text, colore](QPainter& p, QPointF at) {
        p.setPen(colore);
        text->Dipinge(p, at);
    });
}

/// Utilisation, what governs, why, and the clause.
std::string Pennello::SottoVerdetto(const VerdettoRelazione& v) const {
    std::string testo;
    const std::string utilizzo = TestoUtilizzo(v.utilizzo);
    for (const std::string& parte :
         {utilizzo.empty() ? std::string() : "utilizzo " + utilizzo,
          v.governa.empty() ? std::string() : "governa " + v.governa, v.motivo, v.norma})
        if (!parte.empty())
            testo += (testo.empty() ? "" : " · ") + parte;
    return testo;
}

/// A bar at the foot, full at 1.
void Pennello::Utilizzo(QPainter& p, const QRectF& riquadro, double utilizzo, const QColor& colore) const {
    constexpr double alta = 0.9;
    constexpr double striscia = 1.2;
    const QRectF bar(riquadro.left() + mm(striscia), riquadro.bottom() - mm(alta),
                     riquadro.width() - mm(striscia), mm(alta));
    p.setPen(Qt::NoPen);
    p.setBrush(stile_->filo);
    p.drawRect(bar);
    p.setBrush(colore);
    p.drawRect(QRectF(bar.topLeft(), QSizeF(bar.width() * std::clamp(utilizzo, 0.0, 1.0), bar.height())));
}

/// What is checked with its utilisation, the verdict at the right.
void Pennello::Verdetto(QPainter& p, const QRectF& riquadro, const VerdettoRelazione& v) const {
    constexpr float velo = 0.07F;
    constexpr double esito = 20; // room of the verdict
    const QColor ink = ColoreEsito(v.esito);
    QColor shade = ink;
    shade.setAlphaF(velo);
    p.fillRect(riquadro, shade);
    p.fillRect(QRectF(riquadro.topLeft(), QSizeF(mm(1.2), riquadro.height())), ink);
    const QPointF text = riquadro.topLeft() + QPointF(mm(4), mm(1.2));
    const double room = riquadro.width() / stile_->unita - esito;
    const TestoMarcato name = Parole(v.verifica, stile_->grassetto, room);
    p.setPen(stile_->inchiostro);
    name.Dipinge(p, text);
    p.setPen(stile_->grigio);
    Parole(SottoVerdetto(v), stile_->nota, room).Dipinge(p, text + QPointF(0, name.Altezza()));
    p.setPen(ink);
    p.setFont(stile_->titolo);
    p.drawText(QRectF(riquadro.right() - mm(16), riquadro.top(), mm(13), riquadro.height() - mm(1.6)),
               Qt::AlignRight | Qt::AlignVCenter, Q(std::string(TestoEsito(v.esito))));
    if (std::isfinite(v.utilizzo))
        Utilizzo(p, riquadro, v.utilizzo, ink);
}

void Compositore::Verdetto(const VerdettoRelazione& v) {
    constexpr double minima = 12.5;
    const double room = larghezzaScritta - 24;
    const double lines =
        pen_.Parole(v.verifica, s_.grassetto, room).Altezza() +
        pen_.Parole(v.governa + v.motivo + v.norma + " utilizzo 100.0 % governa ·  ·", s_.nota, room)
            .Altezza();
    const double height = std::max(s_.mm(minima), lines + s_.mm(4));
    Aggiunge(height + s_.mm(2), false, [pen = pen_, v, height](QPainter& p, QPointF at) {
        pen.Verdetto(p, QRectF(at.x(), at.y() + pen.mm(1), pen.Stile().larghezza, height), v);
    });
}

void Compositore::Capitolo(const CapitoloRelazione& c) {
    if (c.passi.empty() && c.note.empty())
        return; // its verdict stands at the head
    Spazio(4);
    Titolo(Q(c.titolo), s_.capitolo, s_.accento, true);
    const bool dati = std::ranges::all_of(c.passi, [](const PassoRelazione& p) {
        return p.formula.empty() && p.numeri.empty() && p.norma.empty();
    });
    const qsizetype first = blocchi_.size();
    if (dati)
        DueColonne(c.passi);
    else
        for (const PassoRelazione& p : c.passi)
            Passo(p);
    TieneInsieme(first, !c.note.empty());
    if (!c.note.empty())
        Spazio(1);
    for (const std::string& nota : c.note)
        Paragrafo(Q(nota), s_.inchiostro);
    if (c.verdetto) {
        blocchi_.last().conIlSeguente = true;
        Verdetto(*c.verdetto);
    }
}

void Compositore::Avvisi(const std::vector<std::string>& avvisi) {
    if (avvisi.empty())
        return;
    Spazio(4);
    Titolo(QStringLiteral("Avvisi"), s_.capitolo, s_.accento, true);
    for (const std::string& avviso : avvisi)
        Paragrafo(Q(avviso), s_.nonPassa);
}

} // namespace

StileRelazione::StileRelazione(const QPaintDevice& device)
    : carta(&device), unita(device.logicalDpiX() / mmPollice), larghezza(larghezzaScritta * unita) {
    const QStringList sans{QStringLiteral("Noto Sans"), QStringLiteral("Liberation Sans"),
                           QStringLiteral("DejaVu Sans"), QStringLiteral("sans-serif")};
    const QStringList serif{QStringLiteral("STIX Two Text"), QStringLiteral("STIX"),
                            QStringLiteral("Liberation Serif"), QStringLiteral("DejaVu Serif"),
                            QStringLiteral("serif")};
    testo = Carattere(sans, 8.5);
    grassetto = Carattere(sans, 8.5, true);
    nota = Carattere(sans, 7);
    titolo = Carattere(sans, 16, true);
    capitolo = Carattere(sans, 10.5, true);
    formula = Carattere(serif, 10);
    inchiostro = QColor(0x1a, 0x1a, 0x1a);
    grigio = QColor(0x5a, 0x62, 0x6e);
    filo = QColor(0xd5, 0xd9, 0xe0);
    accento = QColor(0x1f, 0x3a, 0x5f);
    passa = QColor(0x1a, 0x7f, 0x37);
    nonPassa = QColor(0xb4, 0x23, 0x18);
}

// The pieces refer to the style.
Blocchi BlocchiDi(const Relazione& relazione, const StileRelazione& stile) {
    Compositore writer(stile);
    writer.Testa(relazione);
    for (const CapitoloRelazione& c : relazione.capitoli)
        writer.Capitolo(c);
    writer.Avvisi(relazione.avvisi);
    return std::move(writer).Presi();
}

} // namespace sagomi
