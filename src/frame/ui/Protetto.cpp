#include "frame/ui/Protetto.h"

#include <QVariant>

#include <exception>
#include <system_error>

#include "frame/Errori.h"
#include "frame/Messaggi.h"

namespace sagomi {

namespace {

constexpr const char* segnoDipintoFallito = "dipintoFallito";

} // namespace

DescrizioneErrore ErroreInVolo() {
    try {
        throw;
    } catch (const ErroreNumerato& e) {
        return {e.Numero(), e.what()};
    } catch (const std::system_error& e) {
        return {e.code().value(), e.what()};
    } catch (const std::exception& e) {
        return {0, e.what()};
    } catch (...) {
        return {0, "errore sconosciuto"};
    }
}

void AvvisaErrore(const std::string& prefisso, const DescrizioneErrore& e) {
    Avvisa(prefisso + " n° " + QString::number(e.numero).toStdString() + " - " + e.testo);
}

bool DipintoFallito(const QWidget* oggetto) { return oggetto->property(segnoDipintoFallito).toBool(); }

void RicordaDipintoFallito(QWidget* oggetto, const DescrizioneErrore& errore) {
    oggetto->setProperty(segnoDipintoFallito, true);
    QMetaObject::invokeMethod(
        oggetto, [errore] { AvvisaErrore("Errore", errore); }, Qt::QueuedConnection);
}

} // namespace sagomi
