#include "report/ui/ComandoRelazione.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/ui/FileDialogo.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/Schermo.h"
#include "report/ui/PdfRelazione.h"

namespace sagomi {

namespace {

constexpr const char* tasto = "Ctrl+E";

/// A button no higher than a line of text: the status line grows by nothing.
class PulsanteDiRiga : public QToolButton {
public:
    using QToolButton::QToolButton;
    [[nodiscard]] QSize sizeHint() const override {
        return {QToolButton::sizeHint().width(), fontMetrics().height()};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
};

/// Keeps the boxes of a screen with the command from taking its key: on X11 the toolkit's boxes go to the end
/// of their text with it.
class TastoLibero : public QObject {
public:
    bool eventFilter(QObject* object, QEvent* event) override {
        return EventoProtetto([object, event] { return Libera(object, *event); });
    }
    static void Installa() {
        static TastoLibero filter;
        qApp->installEventFilter(&filter);
    }

private:
    static bool Libera(QObject* object, QEvent& event) {
        const auto* key =
            event.type() == QEvent::ShortcutOverride ? static_cast<QKeyEvent*>(&event) : nullptr;
        const auto* box = key != nullptr ? qobject_cast<QLineEdit*>(object) : nullptr;
        if (box == nullptr || key->keyCombination() != (Qt::CTRL | Qt::Key_E))
            return false;
        const QWidget* window = box->window();
        const bool mine = window->findChild<QToolButton*>(QStringLiteral("CmdRelazione")) != nullptr ||
                          window->findChild<QAction*>(QStringLiteral("mnuRelazione")) != nullptr;
        if (mine)
            event.ignore();
        return mine;
    }
};

/// The buttons of the question in their order, with what they stand for.
std::optional<SceltaRelazione> ChiedeColDialogo(QWidget* parent, const QString& project) {
    QDialog dialog(parent);
    dialog.setWindowTitle(QStringLiteral("Relazione"));
    dialog.setObjectName(QStringLiteral("DialogoRelazione"));
    auto* rows = new QVBoxLayout(&dialog);
    auto* caption = new QLabel(QStringLiteral("&Progetto, in testa a ogni pagina:"));
    auto* name = new QLineEdit(project);
    name->setObjectName(QStringLiteral("TxtProgetto"));
    name->setAccessibleName(QStringLiteral("Progetto"));
    constexpr int largo = 380;
    name->setMinimumWidth(largo);
    caption->setBuddy(name);
    rows->addWidget(caption);
    rows->addWidget(name);
    auto* buttons = new QDialogButtonBox;
    std::optional<MetaRelazione> chosen;
    const std::pair<const char*, MetaRelazione> ways[] = {
        {"&Salva PDF...", MetaRelazione::Pdf}, {"&Anteprima e stampa...", MetaRelazione::Anteprima}};
    for (const auto& [text, way] : ways) {
        auto* button = buttons->addButton(QString::fromUtf8(text), QDialogButtonBox::AcceptRole);
        button->setDefault(way == MetaRelazione::Pdf);
        Collega(button, &QPushButton::clicked, &dialog, [&chosen, &dialog, way = way] {
            chosen = way;
            dialog.accept();
        });
    }
    buttons->addButton(QStringLiteral("Annulla"), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    rows->addWidget(buttons);
    if (dialog.exec() != QDialog::Accepted || !chosen)
        return std::nullopt;
    return SceltaRelazione{*chosen, name->text().trimmed()};
}

ChiedeRelazione& Domanda() {
    static ChiedeRelazione ask = ChiedeColDialogo;
    return ask;
}

QString& UltimoProgetto() {
    static QString project;
    return project;
}

QString NomeProposto(const Relazione& r) {
    static const QRegularExpression refused(QStringLiteral("[\\\\/:*?\"<>|]"));
    return QString::fromStdString(r.titolo + " " + r.oggetto).replace(refused, QStringLiteral("-")) +
           QStringLiteral(".pdf");
}

void Salva(Schermo& screen, const Relazione& r) {
    const QString filter = QString::fromStdString(FiltroFileDialogo("Documenti PDF", "pdf"));
    QString file = SceglieFile(&screen, "S", filter, indiceFiltroFileDialogo, NomeProposto(r));
    if (file.isEmpty())
        return;
    if (QFileInfo(file).suffix().isEmpty())
        file += QStringLiteral(".pdf");
    PathLavoro = QFileInfo(file).absolutePath().toStdString();
    try {
        ScrivePdfRelazione(r, file.toStdString());
    } catch (const std::runtime_error& e) {
        Avvisa(e.what());
        return;
    }
    screen.statusBar()->showMessage(QStringLiteral("Relazione: ") + file);
}

void MostraAnteprima(Schermo& screen, const Relazione& r) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    QPrintPreviewDialog preview(&printer, &screen);
    preview.setObjectName(QStringLiteral("AnteprimaDiStampa"));
    preview.setWindowTitle(QString::fromStdString(r.titolo + ": " + r.oggetto));
    Collega(&preview, &QPrintPreviewDialog::paintRequested, &preview, [&r](QPrinter* paper) {
        if (!StampaRelazioneSu(*paper, r))
            Avvisa("La stampante non accetta la relazione.");
    });
    preview.exec();
}

void Manda(Schermo& screen, const Relazione& r, MetaRelazione meta) {
    if (meta == MetaRelazione::Pdf)
        Salva(screen, r);
    else
        MostraAnteprima(screen, r);
}

void Esegue(Schermo& screen, const SorgenteRelazione& source) {
    screen.ConcludeEntrate();
    Relazione report = source();
    if (report.capitoli.empty()) {
        Avvisa("Questo schermo non ha risultati da riportare.");
        return;
    }
    const std::optional<SceltaRelazione> chosen = Domanda()(&screen, UltimoProgetto());
    if (!chosen)
        return;
    UltimoProgetto() = chosen->progetto;
    report.progetto = chosen->progetto.toStdString();
    report.data = DataRelazione();
    Manda(screen, report, chosen->meta);
}

} // namespace

void ImpostaChiedeRelazione(ChiedeRelazione chiede) {
    Domanda() = chiede ? std::move(chiede) : ChiedeColDialogo;
}

void AggiungeRelazione(Schermo& schermo, SorgenteRelazione sorgente) {
    TastoLibero::Installa();
    auto* button = new PulsanteDiRiga(&schermo);
    button->setObjectName(QStringLiteral("CmdRelazione"));
    button->setText(QStringLiteral("Relazione PDF..."));
    button->setAccessibleName(QStringLiteral("Relazione PDF"));
    button->setToolTip(QStringLiteral("Relazione di calcolo in PDF, anteprima e stampa (Ctrl+E)"));
    button->setShortcut(QKeySequence(QString::fromLatin1(tasto)));
    button->setAutoRaise(true);
    schermo.statusBar()->addPermanentWidget(button);
    Collega(button, &QToolButton::clicked, &schermo,
            [&schermo, source = std::move(sorgente)] { Esegue(schermo, source); });
}

void AggiungeRelazione(Schermo& schermo, QMenu& menu, QAction* prima, SorgenteRelazione sorgente) {
    TastoLibero::Installa();
    auto* entry = new QAction(QStringLiteral("Re&lazione PDF..."), &menu);
    entry->setObjectName(QStringLiteral("mnuRelazione"));
    entry->setShortcut(QKeySequence(QString::fromLatin1(tasto)));
    menu.insertAction(prima, entry);
    Collega(entry, &QAction::triggered, &schermo,
            [&schermo, source = std::move(sorgente)] { Esegue(schermo, source); });
}

} // namespace sagomi
