#include "frame/ui/FileDialogo.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>

#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/MotivoFile.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

QString Utf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// "Text|*.a|Text|*.b" as the toolkit wants it; the lower case pattern goes along, for systems that tell
/// capitals apart.
QStringList FiltriQt(const QString& filter) {
    QStringList result;
    const QStringList pieces = filter.split(u'|');
    for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
        const QString pattern = pieces[i + 1];
        QStringList patterns{pattern == QLatin1String("*.*") ? QStringLiteral("*") : pattern};
        for (const QString& variant : {pattern.toLower(), pattern.toUpper()})
            if (pattern != QLatin1String("*.*") && !patterns.contains(variant))
                patterns << variant;
        result << pieces[i] + QLatin1String(" (") + patterns.join(u' ') + u')';
    }
    return result;
}

/// What a name without an ending gets: the one of the type that is chosen, of "all files" that of the last.
QString SuffissoDi(const QString& filter, qsizetype chosen) {
    const QString suffix = filter.section(u'|', 2 * chosen + 1, 2 * chosen + 1).section(u'.', -1);
    return suffix == u'*' ? filter.section(u'.', -1) : suffix;
}

/// The dialog names a type with or without its patterns.
qsizetype TipoDi(const QStringList& filters, const QString& name) {
    const auto at = std::ranges::find_if(
        filters, [&name](const QString& f) { return f == name || f.startsWith(name + QLatin1String(" (")); });
    return at - filters.begin();
}

void SegueTipo(QFileDialog& dialog, const QString& filter, const QStringList& filters, int index) {
    dialog.setDefaultSuffix(SuffissoDi(filter, index - 1));
    Collega(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog, filter, filters](const QString& name) {
        dialog.setDefaultSuffix(SuffissoDi(filter, TipoDi(filters, name)));
    });
}

QString SceglieColDialogo(QWidget* parent, std::string_view mode, const QString& filter, int index,
                          const QString& proposal) {
    QFileDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("DialogoFile"));
    const bool open = mode == "L";
    dialog.setAcceptMode(open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(open ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    const QStringList filters = FiltriQt(filter);
    dialog.setOption(QFileDialog::HideNameFilterDetails); // the text in front says what there is to say
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(index - 1));
    if (!PathLavoro.empty())
        dialog.setDirectory(QString::fromStdString(PathLavoro.string()));
    if (!proposal.contains(u'*'))
        dialog.selectFile(proposal);
    if (!open)
        SegueTipo(dialog, filter, filters, index);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

SceltaFile& Scelta() {
    static SceltaFile chosen = SceglieColDialogo;
    return chosen;
}

} // namespace

void ImpostaSceltaFile(SceltaFile scelta) { Scelta() = scelta ? std::move(scelta) : SceglieColDialogo; }

QString SceglieFile(QWidget* sopra, std::string_view modo, const QString& filtro, int indiceFiltro,
                    const QString& proposto) {
    return Scelta()(sopra, modo, filtro, indiceFiltro, proposto);
}

bool FileDialogo(SchermoConFile& schermo, std::string_view modo, std::string_view descrizione,
                 std::string_view estensione, QString& file) {
    const QString extension = Utf8(estensione);
    const QString proposal = file.isEmpty() ? QLatin1String("*.") + extension : file;
    QString chosen = Scelta()(schermo.Finestra(), modo, Utf8(FiltroFileDialogo(descrizione, estensione)),
                              indiceFiltroFileDialogo, proposal);
    if (chosen.isEmpty())
        return false;
    if (modo == "S" && QFileInfo(chosen).suffix().isEmpty())
        chosen += u'.' + extension;
    if (!FileSenzaDialogo(schermo, modo, chosen))
        return false;
    file = chosen;
    return true;
}

bool FileSenzaDialogo(SchermoConFile& schermo, std::string_view modo, const QString& file) {
    const std::string name = file.toStdString();
    const std::int16_t number = ApreFile(name, modo);
    if (number == 0) {
        Avvisa(modo == "S" ? AvvisoNonScritto(name) : AvvisoNonLetto(name));
        return false;
    }
    {
        auto abandon = qScopeGuard([number] { AbbandonaFile(number); });
        schermo.FileLeggeScrive(modo, number);
        abandon.dismiss();
    }
    if (!ChiudeFile(number) || !schermo.FileRiuscito())
        return false;
    schermo.Finestra()->setWindowTitle(schermo.PrefissoTitolo() + QFileInfo(file).fileName());
    PathLavoro = QFileInfo(file).absolutePath().toStdString();
    return true;
}

} // namespace sagomi
