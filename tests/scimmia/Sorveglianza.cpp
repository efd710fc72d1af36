#include "Sorveglianza.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QRegularExpression>

#include <chrono>
#include <cstdio>
#include <cstdlib>

// The toolkit's hooks for tools that look into a program: the places that are called for each object made and
// gone.
extern Q_CORE_EXPORT quintptr qtHookData[];

namespace sagomi::prove {

namespace {

constexpr std::size_t memoria = 40;             ///< events that are told with a finding
constexpr std::chrono::seconds pazienza{120};   ///< without an event: the program hangs
constexpr int postoNascita = 3, postoMorte = 4; ///< in qtHookData

Sorveglianza* attiva = nullptr;
std::atomic<std::size_t> vivi{0};

void Nato(QObject* /*oggetto*/) { ++vivi; }
void Morto(QObject* /*oggetto*/) { --vivi; }

/// What the platform without a screen says of itself.
bool DellaPiattaforma(const QString& text) {
    return text.contains(QLatin1String("This plugin does not support")) ||
           text.contains(QLatin1String("XDG_RUNTIME_DIR"));
}

void Ascolta(QtMsgType kind, const QMessageLogContext& /*place*/, const QString& text) {
    if (kind != QtDebugMsg && kind != QtInfoMsg && !DellaPiattaforma(text) && attiva != nullptr)
        attiva->Trova(QStringLiteral("the toolkit warns: ") + text);
}

/// Words that no message for a user has.
bool ParoleDiProgramma(const QString& text) {
    static const QRegularExpression words(
        QStringLiteral("_M_|std::|::at\\b|basic_string|bad_alloc|bad_cast"));
    return text.contains(words);
}

} // namespace

Sorveglianza::Sorveglianza() {
    attiva = this;
    qtHookData[postoNascita] = reinterpret_cast<quintptr>(&Nato);
    qtHookData[postoMorte] = reinterpret_cast<quintptr>(&Morto);
    qInstallMessageHandler(Ascolta);
    qApp->installEventFilter(this);
    guardia_ = std::jthread([this](const std::stop_token& end) { Guarda(end); });
}

Sorveglianza::~Sorveglianza() {
    qInstallMessageHandler(nullptr);
    qtHookData[postoNascita] = qtHookData[postoMorte] = 0;
    attiva = nullptr;
}

void Sorveglianza::Annota(int numero, const QString& evento) {
    ultimi_.push_back(QString::number(numero) + QLatin1String(": ") + evento);
    if (ultimi_.size() > memoria)
        ultimi_.pop_front();
    ++passo_;
    if (qEnvironmentVariableIsSet("SCIMMIA_RACCONTA"))
        std::fprintf(stderr, "%s\n", qPrintable(ultimi_.back()));
}

void Sorveglianza::Trova(const QString& cosa) {
    ++trovati_;
    std::fprintf(stderr, "FOUND %s\n", qPrintable(cosa));
    for (const QString& event : ultimi_)
        std::fprintf(stderr, "  %s\n", qPrintable(event));
}

void Sorveglianza::Abbandona(const QString& cosa) {
    Trova(cosa);
    std::_Exit(1);
}

bool Sorveglianza::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() != QEvent::Show)
        return false;
    const auto* box = qobject_cast<QMessageBox*>(oggetto);
    if (box == nullptr)
        return false;
    if (box->text().trimmed().isEmpty() || box->buttons().isEmpty())
        Trova(QStringLiteral("an empty box"));
    if (ParoleDiProgramma(box->text()))
        Trova(QStringLiteral("a box with the words of an exception: ") + box->text());
    return false;
}

void Sorveglianza::Guarda(const std::stop_token& fine) {
    using Orologio = std::chrono::steady_clock;
    int before = passo_;
    auto since = Orologio::now();
    while (!fine.stop_requested()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        if (passo_ != before) {
            before = passo_;
            since = Orologio::now();
        }
        if (Orologio::now() - since < pazienza)
            continue;
        std::fprintf(stderr, "the program has not come back\n");
        std::abort(); // leaves a core for who wants to look
    }
}

std::size_t OggettiVivi() { return vivi; }

} // namespace sagomi::prove
