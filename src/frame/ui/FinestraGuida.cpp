#include "frame/ui/FinestraGuida.h"

#include <QAction>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QWindow>

#include <array>
#include <utility>

#include "frame/ui/Protetto.h"
#include "frame/ui/TestoGuida.h"

namespace sagomi {

namespace {

constexpr std::array fileGuida{"Sagomi.hlp", "GiuntoFlangiato.hlp"};
constexpr QSize misura(900, 600);
constexpr QSize cornice(16, 54);     ///< title bar and borders of the window manager
constexpr int larghezzaIndice = 260; // [px]

QPushButton* Bottone(const char* nome, const QString& testo, const QString& aiuto) {
    auto* button = new QPushButton(testo);
    button->setObjectName(QLatin1String(nome));
    button->setToolTip(aiuto);
    button->setAutoDefault(false);
    return button;
}

QLineEdit* Riga(const char* nome, const QString& letta) {
    auto* line = new QLineEdit;
    line->setObjectName(QLatin1String(nome));
    line->setAccessibleName(letta);
    line->setClearButtonEnabled(true);
    return line;
}

QListWidget* Lista(const char* nome, const QString& letta) {
    auto* list = new QListWidget;
    list->setObjectName(QLatin1String(nome));
    list->setAccessibleName(letta);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setTextElideMode(Qt::ElideRight);
    return list;
}

} // namespace

FinestraGuida::FinestraGuida() : testo_(new TestoGuida) {
    setObjectName(QStringLiteral("FinestraGuida"));
    setWindowTitle(tr("Guida"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(CreaComandi());
    auto* halves = new QSplitter;
    halves->addWidget(CreaIndice());
    auto* right = new QWidget;
    auto* reading = new QVBoxLayout(right);
    reading->setContentsMargins(0, 0, 0, 0);
    reading->addWidget(testo_, 1);
    reading->addWidget(CreaTrova());
    halves->addWidget(right);
    halves->setStretchFactor(1, 1);
    halves->setSizes({larghezzaIndice, misura.width() - larghezzaIndice});
    column->addWidget(halves, 1);
    CollegaTasti();
    resize(misura.boundedTo(screen()->availableSize() - cornice));
}

QWidget* FinestraGuida::CreaComandi() {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* back = Bottone("cmdIndietro", tr("&Indietro"), tr("Argomento precedente (Alt+freccia sinistra)"));
    auto* forward = Bottone("cmdAvanti", tr("A&vanti"), tr("Argomento seguente (Alt+freccia destra)"));
    auto* find = Bottone("cmdTrova", tr("&Trova..."), tr("Trova nel testo (Ctrl+F)"));
    for (QPushButton* button : {back, forward, find})
        layout->addWidget(button);
    layout->addStretch(1);
    back->setEnabled(false);
    forward->setEnabled(false);
    Collega(testo_, &QTextBrowser::backwardAvailable, back, [back](bool on) { back->setEnabled(on); });
    Collega(testo_, &QTextBrowser::forwardAvailable, forward,
            [forward](bool on) { forward->setEnabled(on); });
    Collega(back, &QPushButton::clicked, this, [this] { testo_->backward(); });
    Collega(forward, &QPushButton::clicked, this, [this] { testo_->forward(); });
    Collega(find, &QPushButton::clicked, this, [this] { ApreTrova(); });
    return row;
}

QWidget* FinestraGuida::CreaIndice() {
    auto* panel = new QWidget;
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    cerca_ = Riga("txtCerca", tr("Cerca nella guida"));
    cerca_->setPlaceholderText(tr("Cerca nella guida (Ctrl+K)"));
    listaArgomenti_ = Lista("lstArgomenti", tr("Argomenti"));
    listaIndice_ = Lista("lstIndice", tr("Indice alfabetico"));
    schede_ = new QTabWidget;
    schede_->setAccessibleName(tr("Argomenti e indice"));
    schede_->addTab(listaArgomenti_, tr("Ar&gomenti"));
    schede_->addTab(listaIndice_, tr("I&ndice"));
    layout->addWidget(cerca_);
    layout->addWidget(schede_, 1);
    const auto open = [this](QListWidgetItem* item) { testo_->setSource(item->data(Qt::UserRole).toUrl()); };
    for (QListWidget* list : {listaArgomenti_, listaIndice_}) {
        Collega(list, &QListWidget::itemClicked, this, open);
        Collega(list, &QListWidget::itemActivated, this, open);
    }
    Collega(cerca_, &QLineEdit::textChanged, this, [this] { Cerca(); });
    Collega(cerca_, &QLineEdit::returnPressed, this, [this, open] {
        if (auto* list = static_cast<QListWidget*>(schede_->currentWidget()); list->count() > 0) {
            list->setCurrentRow(0);
            list->setFocus();
            open(list->item(0));
        }
    });
    return panel;
}

QWidget* FinestraGuida::CreaTrova() {
    barraTrova_ = new QWidget;
    auto* layout = new QHBoxLayout(barraTrova_);
    layout->setContentsMargins(0, 0, 0, 0);
    trova_ = Riga("txtTrova", tr("Trova nel testo"));
    trova_->setPlaceholderText(tr("Trova nel testo"));
    esitoTrova_ = new QLabel;
    esitoTrova_->setObjectName(QStringLiteral("lblTrova"));
    esitoTrova_->setAccessibleName(tr("Esito della ricerca"));
    auto* before = Bottone("cmdPrecedente", tr("Pr&ecedente"), tr("Maiusc+F3"));
    auto* next = Bottone("cmdSeguente", tr("&Seguente"), tr("F3"));
    layout->addWidget(trova_, 1);
    layout->addWidget(before);
    layout->addWidget(next);
    layout->addWidget(esitoTrova_);
    barraTrova_->hide();
    Collega(trova_, &QLineEdit::returnPressed, this, [this] { Trova(true); });
    Collega(trova_, &QLineEdit::textChanged, this, [this] { esitoTrova_->clear(); });
    Collega(next, &QPushButton::clicked, this, [this] { Trova(true); });
    Collega(before, &QPushButton::clicked, this, [this] { Trova(false); });
    return barraTrova_;
}

void FinestraGuida::CollegaTasti() {
    const auto key = [this](const QKeySequence& keys, auto&& command) {
        auto* action = new QAction(this);
        action->setShortcut(keys);
        addAction(action);
        Collega(action, &QAction::triggered, this, command);
    };
    key(Qt::CTRL | Qt::Key_F, [this] { ApreTrova(); });
    key(Qt::CTRL | Qt::Key_K, [this] {
        cerca_->setFocus();
        cerca_->selectAll();
    });
    key(Qt::Key_F3, [this] { Trova(true); });
    key(Qt::SHIFT | Qt::Key_F3, [this] { Trova(false); });
    key(Qt::ALT | Qt::Key_Left, [this] { testo_->backward(); });
    key(Qt::ALT | Qt::Key_Right, [this] { testo_->forward(); });
}

void FinestraGuida::Mostra(const QString& file, const QString& ancora, const QString& parole,
                           const QString& cella) {
    Rilegge();
    testo_->setSource(TestoGuida::Indirizzo(file, ancora), QTextDocument::HtmlResource);
    testo_->setFocus();
    show();
    raise();
    activateWindow();
    testo_->scrollToAnchor(ancora); // once more, now that the text is as wide as it is seen
    if (!parole.isEmpty()) {
        testo_->setTextCursor(testo_->cursorForPosition({0, 0}));
        if (!cella.isEmpty() && testo_->find(cella)) {
            QTextCursor row = testo_->textCursor();
            row.setPosition(row.selectionStart());
            testo_->setTextCursor(row);
        }
        testo_->find(parole);
    }
}

// The windows of a modal one are those that it is the transient parent of.
void FinestraGuida::StaSopra(QWidget* modale) {
    if (sopra_ == modale)
        return;
    if (sopra_ != nullptr)
        sopra_->removeEventFilter(this);
    sopra_ = modale;
    if (modale != nullptr)
        modale->installEventFilter(this);
    winId(); // the native window is there before the first showing
    windowHandle()->setTransientParent(modale == nullptr ? nullptr : modale->windowHandle());
}

bool FinestraGuida::eventFilter(QObject* object, QEvent* event) {
    return EventoProtetto([this, object, event] {
        if (object == sopra_ && event->type() == QEvent::Hide) {
            const QWidget* below = sopra_->parentWidget();
            StaSopra(below != nullptr && below->window()->isModal() ? below->window() : nullptr);
        }
        return QWidget::eventFilter(object, event);
    });
}

void FinestraGuida::hideEvent(QHideEvent* event) {
    EventoProtetto([this, event] {
        QWidget::hideEvent(event);
        if (sopra_ != nullptr && sopra_->isVisible())
            sopra_->activateWindow();
    });
}

void FinestraGuida::Rilegge() {
    QStringList read;
    for (const char* name : fileGuida)
        read << LeggeGuida(QLatin1String(name));
    const std::size_t now = qHashRange(read.begin(), read.end());
    if (now != std::exchange(letti_, now)) {
        QList<ArgomentoGuida> topics;
        QList<ArgomentoGuida> words;
        for (std::size_t i = 0; i < fileGuida.size(); ++i) {
            const QString& html = read[static_cast<qsizetype>(i)];
            topics << ArgomentiGuida(QLatin1String(fileGuida.at(i)), html);
            words << IndiceGuida(QLatin1String(fileGuida.at(i)), html);
        }
        argomenti_ = RicercaGuida(topics);
        indice_ = RicercaGuida(words);
    }
    Cerca();
}

void FinestraGuida::Cerca() {
    Riempie(*listaArgomenti_, argomenti_.Cerca(cerca_->text()));
    Riempie(*listaIndice_, indice_.Cerca(cerca_->text()));
}

void FinestraGuida::Riempie(QListWidget& lista, const QList<ArgomentoGuida>& argomenti) {
    lista.clear();
    for (const ArgomentoGuida& topic : argomenti) {
        const QString indent(topic.livello > 1 ? 3 * (topic.livello - 1) : 0, u' ');
        auto* item = new QListWidgetItem(indent + topic.titolo, &lista);
        item->setData(Qt::UserRole, TestoGuida::Indirizzo(topic.file, topic.ancora));
        item->setToolTip(topic.titolo);
    }
}

void FinestraGuida::ApreTrova() {
    barraTrova_->show();
    trova_->setFocus();
    trova_->selectAll();
}

/// Round and round, from where the last word was found, at first from what is in sight.
void FinestraGuida::Trova(bool avanti) {
    if (trova_->text().isEmpty()) {
        ApreTrova();
        return;
    }
    if (!testo_->textCursor().hasSelection())
        testo_->setTextCursor(testo_->cursorForPosition({0, 0}));
    const auto how = avanti ? QTextDocument::FindFlags() : QTextDocument::FindBackward;
    bool found = testo_->find(trova_->text(), how);
    if (!found) {
        testo_->moveCursor(avanti ? QTextCursor::Start : QTextCursor::End);
        found = testo_->find(trova_->text(), how);
    }
    esitoTrova_->setText(found ? QString() : tr("non trovato"));
}

void FinestraGuida::keyPressEvent(QKeyEvent* event) {
    EventoProtetto([this, event] {
        if (event->key() != Qt::Key_Escape)
            QWidget::keyPressEvent(event);
        else if (barraTrova_->isVisible()) {
            barraTrova_->hide();
            testo_->setFocus();
        } else
            hide();
    });
}

} // namespace sagomi
