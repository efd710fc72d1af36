#include "screens/ApreFile.h"

#include <QFileInfo>

#include "frame/Messaggi.h"
#include "frame/ui/DocumentoSchermo.h"
#include "frame/ui/NavigaSchermi.h"

namespace sagomi {

namespace {

/// Which screen opens the files of an extension.
struct TipoFile {
    const char *estensione, *schermo;
};
constexpr TipoFile tipi[] = {{"sco", "frmAcciaioCls"}, {"gfl", "frmGiunti"}};

QString SchermoPer(const QString& file) {
    for (const TipoFile& tipo : tipi)
        if (QFileInfo(file).suffix().compare(QLatin1String(tipo.estensione), Qt::CaseInsensitive) == 0)
            return QLatin1String(tipo.schermo);
    return {};
}

} // namespace

// The screen comes first: it takes the section of the row in hand as it opens, the file then puts its own
// there.
bool ApreFile(const QString& file) {
    const QString name = SchermoPer(file);
    Schermo* from = NavigaSchermi::Unico().Attivo();
    if (name.isEmpty()) {
        Avvisa("Errore: " + file.toStdString() + " non è un file di Sagomi (Gfl, Sco)");
        return false;
    }
    if (from != nullptr) {
        NavigaSchermi::Unico().Apre(name, *from);
        if (auto* document = NavigaSchermi::Unico().Prende(name).findChild<DocumentoSchermo*>())
            return document->Apre(file);
    }
    Avvisa("Errore: " + file.toStdString() + " non si apre dalla riga di comando");
    return false;
}

} // namespace sagomi
