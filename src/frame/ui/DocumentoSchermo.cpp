#include "frame/ui/DocumentoSchermo.h"

#include <QFileInfo>
#include <QMenu>
#include <QWidget>

#include <algorithm>
#include <utility>

#include "frame/Messaggi.h"
#include "frame/RecentiDesktop.h"
#include "frame/Ripristino.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

constexpr qsizetype recentiMassimi = 8;

QList<DocumentoSchermo*>& Documenti() {
    static QList<DocumentoSchermo*> all;
    return all;
}

/// A name of a file as an entry of a menu: no mnemonic in it.
QString VoceRecente(qsizetype i, const QString& file) {
    QString name = QFileInfo(file).fileName();
    name.replace(u'&', QLatin1String("&&"));
    return u'&' + QString::number(i + 1) + u' ' + name;
}

[[maybe_unused]] const bool ripristino = AggiungeRipristino([] { FileRecenti().clear(); });

} // namespace

QHash<QString, QStringList>& FileRecenti() {
    static QHash<QString, QStringList> files;
    return files;
}

DocumentoSchermo::DocumentoSchermo(SchermoConFile& schermo, Specie specie)
    : QObject(schermo.Finestra()), schermo_(schermo), specie_(std::move(specie)) {
    Documenti().append(this);
    schermo_.Finestra()->setWindowTitle(schermo_.PrefissoTitolo());
}

DocumentoSchermo::~DocumentoSchermo() { Documenti().removeOne(this); }

QStringList& DocumentoSchermo::Recenti() const { return FileRecenti()[schermo_.Finestra()->objectName()]; }

bool DocumentoSchermo::PuoPerdere() const {
    if (!modificato_)
        return true;
    const std::string name =
        file_.isEmpty() ? specie_.descrizione : QFileInfo(file_).fileName().toStdString();
    return Chiede(name + ": le modifiche non sono salvate.\nContinuare e perderle?");
}

bool DocumentoSchermo::TuttiDaLasciare() {
    return std::ranges::all_of(Documenti(), [](const DocumentoSchermo* d) { return d->PuoPerdere(); });
}

bool DocumentoSchermo::Nuovo(const std::function<void()>& svuota) {
    if (!PuoPerdere())
        return false;
    svuota();
    file_.clear();
    modificato_ = false;
    schermo_.Finestra()->setWindowTitle(schermo_.PrefissoTitolo());
    return true;
}

// Reading fills the entries, which tell of changes: what was there before counts when it fails.
bool DocumentoSchermo::Muove(const std::function<bool()>& moto) {
    const bool before = modificato_;
    const bool moved = moto();
    modificato_ = !moved && before;
    if (moved)
        RicordaFile();
    return moved;
}

bool DocumentoSchermo::Apre() {
    return PuoPerdere() && Muove([this] {
               return FileDialogo(schermo_, "L", specie_.descrizione, specie_.estensioneApre, file_);
           });
}

bool DocumentoSchermo::Apre(const QString& file) {
    if (!PuoPerdere())
        return false;
    const bool opened = Muove([this, &file] {
        if (!FileSenzaDialogo(schermo_, "L", file))
            return false;
        file_ = file;
        return true;
    });
    if (!opened && !QFileInfo::exists(file)) {
        Recenti().removeAll(file);
        ElencaRecenti();
    }
    return opened;
}

bool DocumentoSchermo::Salva() {
    return Muove(
        [this] { return FileDialogo(schermo_, "S", specie_.descrizione, specie_.estensioneSalva, file_); });
}

bool DocumentoSchermo::SalvaSubito() {
    return file_.isEmpty() ? Salva() : Muove([this] { return FileSenzaDialogo(schermo_, "S", file_); });
}

void DocumentoSchermo::RicordaFile() {
    const QString path = QFileInfo(file_).absoluteFilePath();
    Recenti().removeAll(path);
    Recenti().prepend(path);
    Recenti().resize(std::min(Recenti().size(), recentiMassimi));
    ElencaRecenti();
    RicordaNelDesktop(path.toStdString());
}

void DocumentoSchermo::CollegaRecenti(QMenu& menu) {
    recenti_ = &menu;
    Collega(recenti_, &QMenu::aboutToShow, this, [this] { ElencaRecenti(); });
    ElencaRecenti();
}

void DocumentoSchermo::ElencaRecenti() {
    if (recenti_ == nullptr)
        return;
    recenti_->clear();
    for (const QString& file : Recenti()) {
        const auto i = recenti_->actions().size();
        QAction* entry = recenti_->addAction(VoceRecente(i, file));
        entry->setObjectName(QStringLiteral("mnuRecenti_%1").arg(i));
        entry->setToolTip(file);
        entry->setStatusTip(file);
        // The menu is made anew by what the entry does: that waits until the entry is through.
        connect(
            entry, &QAction::triggered, this, [this, file] { EventoProtetto([&] { Apre(file); }); },
            Qt::QueuedConnection);
    }
    recenti_->setEnabled(!recenti_->isEmpty());
}

} // namespace sagomi
