#include "screens/StatoUtente.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <memory>

#include "catalogue/OrdineQuery.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/ui/Collocazione.h"
#include "frame/ui/DocumentoSchermo.h"
#include "screens/SchermoSezione.h"

namespace sagomi {

namespace {

QString& Cartella() {
    static QString folder;
    return folder;
}

constexpr qint64 byteMassimi = qint64{16} << 20U;

/// nullptr where nothing is kept, or something else stands in the file's place: a pipe would be waited for, a
/// file of any length read whole.
std::unique_ptr<QSettings> File() {
    if (Cartella().isEmpty())
        return nullptr;
    const QFileInfo file(Cartella() + QStringLiteral("/stato.ini"));
    if (file.exists() && (!file.isFile() || file.size() > byteMassimi))
        return nullptr;
    return std::make_unique<QSettings>(file.filePath(), QSettings::IniFormat);
}

QList<QLineEdit*> Entrate(const SchermoSezione& s) {
    return s.TxtNsd == nullptr ? s.Txt_L0 : s.Txt_L0 + QList<QLineEdit*>{s.TxtNsd};
}

QStringList Famiglie(const SchermoSezione& s) {
    QStringList ticked;
    for (const QCheckBox* box : s.ChkTipo)
        if (box->isChecked())
            ticked << box->text();
    return ticked;
}

QString Ordine(const SchermoSezione& s) {
    return QString::fromStdString(ColonnaOrdine(s.Data1->RecordSource()));
}

int Colonna(const SchermoSezione& s, const QString& heading) {
    for (int i = 0; i < s.Data1->Recordset().Campi(); ++i)
        if (QString::fromStdString(s.Data1->Recordset().NomeCampo(i)).compare(heading, Qt::CaseInsensitive) ==
            0)
            return i;
    return -1;
}

/// A file that names no family of today is none: the table stays as it is.
void LeggeTabella(SchermoSezione& s, const QStringList& families, const QString& order) {
    const bool known = std::ranges::any_of(
        s.ChkTipo, [&families](const QCheckBox* box) { return families.contains(box->text()); });
    const bool same = families == Famiglie(s) && order == Ordine(s);
    const int column = Colonna(s, order);
    if (!known || same || column < 0)
        return;
    for (QCheckBox* box : s.ChkTipo)
        box->setChecked(families.contains(box->text()));
    OrdinaPerColonna(s, column);
}

void LeggeRigaInMano(SchermoSezione& s, const QString& name) {
    if (!name.isEmpty() && s.RigaInMano() && !s.Data1->Recordset().CercaRecord(name.toStdString()))
        s.Data1->Recordset().MoveFirst();
}

/// Numbers, for the separators may be others the next time.
void LeggeEntrate(const SchermoSezione& s, const QSettings& file) {
    for (QLineEdit* box : Entrate(s)) {
        bool number = false;
        const double value = file.value(box->objectName()).toDouble(&number);
        if (number)
            box->setText(QString::fromStdString(TestoPiano(value)));
    }
}

void ScriveEntrate(const SchermoSezione& s, QSettings& file) {
    for (const QLineEdit* box : Entrate(s)) {
        if (box->text().trimmed().isEmpty())
            file.remove(box->objectName());
        else
            file.setValue(box->objectName(), NumeroIn(box));
    }
}

void LeggeColonne(const SchermoSezione& s, const QVariantMap& widths) {
    std::map<QString, int> drawn;
    for (auto column = widths.cbegin(); column != widths.cend(); ++column)
        if (const int width = column.value().toInt(); width > 0)
            drawn[column.key()] = width;
    s.DBGrid1->RiprendeLarghezze(std::move(drawn));
}

QVariantMap Colonne(const SchermoSezione& s) {
    QVariantMap widths;
    for (const auto& [heading, width] : s.DBGrid1->LarghezzeScelte())
        widths[heading] = width;
    return widths;
}

void LeggeFinestra(SchermoSezione& s, const QSettings& file) {
    const QSize size = file.value(QStringLiteral("misura")).toSize();
    const QVariant place = file.value(QStringLiteral("posto"));
    if (size.isValid() && place.isValid())
        s.RiprendeFinestra(place.toPoint(), size, file.value(QStringLiteral("massima")).toBool());
}

void ScriveFinestra(const SchermoSezione& s, QSettings& file) {
    const QRect normal = s.isMaximized() ? s.normalGeometry() : QRect(s.pos(), s.size());
    file.setValue(QStringLiteral("posto"), normal.topLeft());
    file.setValue(QStringLiteral("misura"), normal.size());
    file.setValue(QStringLiteral("massima"), s.isMaximized());
}

void ScriveComune(QSettings& file) {
    file.beginGroup(QStringLiteral("posti"));
    for (auto place = PostiFinestre().cbegin(); place != PostiFinestre().cend(); ++place)
        file.setValue(place.key(), place.value());
    file.endGroup();
    file.beginGroup(QStringLiteral("recenti"));
    for (auto recent = FileRecenti().cbegin(); recent != FileRecenti().cend(); ++recent)
        file.setValue(recent.key(), recent.value());
    file.endGroup();
    file.setValue(QStringLiteral("cartella"), QString::fromStdString(PathLavoro.string()));
}

} // namespace

void CartellaStato(const QString& cartella) { Cartella() = cartella; }

void LeggeStato(SchermoSezione& schermo) {
    const auto file = File();
    if (file == nullptr || !file->childGroups().contains(schermo.objectName()))
        return;
    const MessaggiTaciuti quiet;
    file->beginGroup(schermo.objectName());
    LeggeColonne(schermo, file->value(QStringLiteral("colonne")).toMap());
    LeggeTabella(schermo, file->value(QStringLiteral("famiglie")).toStringList(),
                 file->value(QStringLiteral("ordine")).toString());
    LeggeRigaInMano(schermo, file->value(QStringLiteral("riga")).toString());
    LeggeEntrate(schermo, *file);
    LeggeFinestra(schermo, *file);
}

void ScriveStato(const SchermoSezione& schermo) {
    const auto file = File();
    if (file == nullptr)
        return;
    file->beginGroup(schermo.objectName());
    file->setValue(QStringLiteral("famiglie"), Famiglie(schermo));
    file->setValue(QStringLiteral("ordine"), Ordine(schermo));
    file->setValue(QStringLiteral("riga"), schermo.TxtProf[0]->text());
    file->setValue(QStringLiteral("colonne"), Colonne(schermo));
    ScriveEntrate(schermo, *file);
    ScriveFinestra(schermo, *file);
    file->endGroup();
    ScriveComune(*file);
}

void LeggeStatoComune() {
    const auto file = File();
    if (file == nullptr)
        return;
    file->beginGroup(QStringLiteral("posti"));
    for (const QString& window : file->childKeys())
        PostiFinestre().insert(window, file->value(window).toPoint());
    file->endGroup();
    file->beginGroup(QStringLiteral("recenti"));
    for (const QString& screen : file->childKeys())
        FileRecenti().insert(screen, file->value(screen).toStringList());
    file->endGroup();
    const QString folder = file->value(QStringLiteral("cartella")).toString();
    if (!folder.isEmpty() && QDir(folder).exists())
        PathLavoro = folder.toStdString();
}

} // namespace sagomi
