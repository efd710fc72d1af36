#include <QAction>
#include <QSignalBlocker>

#include "catalogue/ErroreCatalogo.h"
#include "catalogue/Famiglie.h"
#include "catalogue/OrdineQuery.h"
#include "frame/Attesa.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/ui/Entrata.h"
#include "frame/ui/Guida.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/ScriveTesto.h"
#include "frame/ui/Twips.h"
#include "screens/AggiornaVisibili.h"
#include "screens/SchermoSezione.h"
#include "screens/StatoUtente.h"
#include "sections/SezioneCorrente.h"

namespace sagomi {

namespace {

constexpr int cifreRisultati = 4;  ///< figures of the result boxes
constexpr double fyMinimo = 0.001; ///< a strength not above this is no strength [N/mm2]

/// Without a row there are no values, no section and no results, on this screen and on those opened from it.
void SvuotaCampi(SchermoSezione& schermo) {
    for (QLineEdit* field : schermo.TxtProf)
        field->clear();
    SezioneCorrente.emplace<std::monostate>();
    schermo.Risultati();
}

/// Pending events are let through around the reading, as the windows are being made.
void PrimaLettura(SchermoSezione& schermo) {
    Prosegue();
    schermo.Data1->Refresh();
    Prosegue();
}

void RiempieAcciai(SchermoSezione& schermo) {
    const QSignalBlocker quiet(schermo.ComboTipoAcciaio);
    schermo.ComboTipoAcciaio->clear();
    for (const std::string& name : NomeAcciaio)
        schermo.ComboTipoAcciaio->addItem(QString::fromStdString(name));
    schermo.ComboTipoAcciaio->setCurrentIndex(IndiceAcciaio);
}

/// The index of the option that is set; -1 where the table is sorted by another column.
int OrdineScelto(const SchermoSezione& schermo) {
    for (int i = 0; i < schermo.OptionOrdina.size(); ++i)
        if (schermo.OptionOrdina[i]->isChecked())
            return i;
    return -1;
}

/// Sets an option, or with -1 none.
void ImpostaOrdine(SchermoSezione& schermo, int indice) {
    for (int i = 0; i < schermo.OptionOrdina.size(); ++i) {
        schermo.OptionOrdina[i]->setAutoExclusive(false);
        schermo.OptionOrdina[i]->setChecked(i == indice);
    }
    for (QRadioButton* option : schermo.OptionOrdina)
        option->setAutoExclusive(true);
}

int OrdineDi(const SchermoSezione& schermo, const QString& colonna) {
    const auto& keys = FamigliaDi(schermo.objectName().toStdString()).chiavi;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const std::string key = ColonnaOrdine(" ORDER BY " + std::string(keys[i]));
        if (QString::fromStdString(key).compare(colonna, Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    }
    return -1;
}

/// The query of the boxes; the column sorts it where no option is set.
std::optional<std::string> QueryScelta(const SchermoSezione& schermo, std::string_view foglio,
                                       const std::string& colonna) {
    std::vector<bool> ticks;
    for (const QCheckBox* box : schermo.ChkTipo)
        ticks.push_back(box->isChecked());
    const int order = OrdineScelto(schermo);
    auto query = CambioFamigliaQuery(schermo.objectName().toStdString(), ticks, std::max(0, order), foglio);
    if (query && order < 0 && !colonna.empty())
        query = OrdinaPer(*query, colonna);
    return query;
}

bool RileggeTabella(SchermoSezione& schermo, std::string_view foglio, const std::string& colonna) {
    const auto query = QueryScelta(schermo, foglio, colonna);
    return query && LeggeTabella(schermo, *query, schermo.Data1->Recordset().Testo(0));
}

} // namespace

void CaricaFormComune(SchermoSezione& schermo) {
    schermo.CaricaForm = true;
    schermo.Data1->Recordset().CampiAttesi(
        static_cast<int>(Intestazioni(schermo.objectName().toStdString()).size()));
    Protetto("Errore in form_load", [&schermo] {
        schermo.Data1->RecordSource(schermo.SQLstring);
        PrimaLettura(schermo);
        schermo.DBGrid1->FormatoGriglia(schermo.Data1->Recordset().Campi() - 1);
    });
    // Whatever became of the table, the rest of the screen stands.
    Protetto("Errore in form_load", [&schermo] { schermo.LegaRiga(); });
    Protetto("Errore in form_load", [&schermo] {
        RiempieAcciai(schermo);
        schermo.AcciaioScelto();
        schermo.AggiornaBarraDiStato();
    });
}

void AttivaForm(SchermoSezione& schermo) {
    Protetto("Errore in AttivaForm " + schermo.objectName().toStdString(), [&schermo] {
        Guida::ImpostaFile(schermo.FileGuida());
        if (FamigliaDi(schermo.objectName().toStdString()).perGiunto)
            schermo.cmdSceltaSagomoGiunto->setVisible(SceltaSagomoGiunto);
        NavigaSchermi::Unico().Prende(QStringLiteral("FrmPltSezione"));
        IndiceAcciaio = static_cast<std::int16_t>(std::max(0, schermo.ComboTipoAcciaio->currentIndex()));
        AggiornaCaptionNormativa(schermo);
        schermo.CaricaForm = false;
        const AggiornamentoRinviato filling(schermo); // no detail leaves anything on the section of this one
        if (schermo.Data1->Recordset().Righe() == 0)
            SezioneCorrente.emplace<std::monostate>(); // that of another screen is not its own
        schermo.DatiRisultati();
        ScreenAttivo = schermo.objectName().toStdString();
    });
}

void AggiornaCaptionNormativa(SchermoSezione& schermo) {
    schermo.NormativaMain->setText(QString::fromStdString("Normativa: " + NomeNormativa()));
}

bool LeggeTabella(SchermoSezione& schermo, const std::string& query, const std::string& nome) {
    try {
        schermo.Data1->RecordSource(query);
        schermo.Data1->Refresh(nome); // its signal takes the row over
    } catch (const ErroreCatalogo& e) {
        Avvisa(e.what());
        return false;
    }
    schermo.DBGrid1->FormatoGriglia(schermo.Data1->Recordset().Campi() - 1);
    if (!schermo.RigaInMano())
        SvuotaCampi(schermo);
    schermo.AggiornaBarraDiStato();
    return true;
}

bool CambioFamiglia(SchermoSezione& schermo, std::string_view foglio) {
    return RileggeTabella(schermo, foglio, ColonnaOrdine(schermo.Data1->RecordSource()));
}

void OrdinaPerColonna(SchermoSezione& schermo, int colonna) {
    const std::string heading = schermo.Data1->Recordset().NomeCampo(colonna);
    const int before = OrdineScelto(schermo);
    ImpostaOrdine(schermo, OrdineDi(schermo, QString::fromStdString(heading)));
    if (!RileggeTabella(schermo, schermo.TabellaOrdine, heading))
        ImpostaOrdine(schermo, before);
}

void MostraValoriRiga(SchermoSezione& schermo) {
    if (!schermo.RigaInMano())
        return;
    const Lettore& row = schermo.Data1->Recordset();
    const int fields = std::min(row.Campi(), static_cast<int>(schermo.TxtProf.size()));
    for (int i = 1; i < fields; ++i)
        ScriveTesto(schermo.TxtProf[i], FormatoCifre(cifreRisultati, row.Numero(i)));
}

void RecordCambiato(SchermoSezione& schermo, int indice) {
    if (indice != 0 || schermo.AggiungeSagomoUtente || !schermo.RigaInMano())
        return;
    MostraValoriRiga(schermo);
    schermo.Leggedati();
    if (ServerAttivo && OggettoServer != nullptr)
        OggettoServer->SagomoCambiato();
    if (schermo.CaricaForm)
        return;
    schermo.Risultati();
    schermo.ControlloDati();
}

bool FyPossibile(double fy) { return fy > fyMinimo; }

void AcciaioCambiato(SchermoSezione& schermo) {
    if (schermo.Fermo())
        return;
    const double fy = NumeroIn(schermo.Txt_fy);
    const bool typed = InDigitazione(schermo.Txt_fy);
    if (!FyPossibile(fy)) {
        schermo.SvuotaValori();
        if (typed) {
            AggiornaVisibili(schermo);
            return;
        }
        Avvisa("fy deve essere > 0");
        schermo.RimetteFy();
        return;
    }
    if (!schermo.RigaInMano())
        return;
    const MessaggiTaciuti quiet(typed);
    SullaSezioneInUso([fy](auto& section) {
        section.fy = fy;
        section.TipoAcciaio = NomeAcciaio[IndiceAcciaio + 1];
    });
    schermo.Risultati();
}

void RiprendeStato(SchermoSezione& schermo) {
    LeggeStato(schermo);
    Collega(&NavigaSchermi::Unico(), &NavigaSchermi::schermoScaricato, &schermo,
            [&schermo](const QString& name) {
                if (name == schermo.objectName())
                    ScriveStato(schermo);
            });
}

void RidimensionaForm(SchermoSezione& schermo) {
    if (ServerAttivo || schermo.CaricaForm)
        return;
    auto& state = schermo.ridimensiona;
    if (schermo.isMinimized()) {
        state.minimizzata = true;
        return;
    }
    if (state.minimizzata) {
        state.minimizzata = false;
        return;
    }
    if (schermo.isMaximized() && !state.scalata) {
        state.altezza = double(schermo.height()) * twipsAPixel / schermo.HeightIni;
        state.larghezza = double(schermo.width()) * twipsAPixel / schermo.WidthIni;
        state.scalata = true;
        schermo.ScalaMassimizzato();
    } else if (!schermo.isMaximized() && state.scalata) {
        state.scalata = false;
        schermo.RimetteScala();
    }
}

} // namespace sagomi
