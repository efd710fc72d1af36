#include "screens/TavolaSchermi.h"

#include "choice/ui/FrmConfronto.h"
#include "choice/ui/FrmScelta.h"
#include "composite/ui/frmAcciaioCls.h"
#include "composite/ui/frmConnettori.h"
#include "composite/ui/frmSuggerimento.h"
#include "criticalloads/ui/frmTimoshenko.h"
#include "drawing/ui/FrmPltSezione.h"
#include "fasteners/ui/frmBulloni.h"
#include "fasteners/ui/frmSaldature.h"
#include "frame/ui/RigaDi.h"
#include "joints/ui/FrmInfoGiunti.h"
#include "joints/ui/FrmRisultatiIntermedi.h"
#include "joints/ui/frmGiunti.h"
#include "screens/FrmClasseDoppioTU.h"
#include "screens/FrmClasseSagomiL.h"
#include "screens/FrmInform.h"
#include "screens/FrmInstabDoppioT.h"
#include "screens/FrmInstabSagomi.h"
#include "screens/FrmMcRd.h"
#include "screens/FrmMsverg.h"
#include "screens/FrmPresFless.h"
#include "screens/FrmVerifiche.h"
#include "screens/frmDoppioT.h"
#include "screens/frmGamma.h"
#include "screens/frmMsvergH1.h"
#include "screens/frmMsvergH2.h"
#include "screens/frmSagomiL.h"
#include "screens/frmSagomiU.h"
#include "screens/frmSaldati.h"
#include "screens/frmSaldatiAsimm.h"

namespace sagomi {

void CaricaTavolaSchermi() {
    for (const VoceSchermo& voce : {RigaDi<frmDoppioT>("frmDoppioT", "mnuTipoT"),
                                    RigaDi<frmSaldati>("frmSaldati", "mnuTipoSaldati"),
                                    RigaDi<frmSaldatiAsimm>("frmSaldatiAsimm", "mnuTipoSaldatiAsimm"),
                                    RigaDi<frmSagomiU>("frmSagomiU", "mnuTipoU"),
                                    RigaDi<frmSagomiL>("frmSagomiL", "mnuTipoL"),
                                    RigaDi<frmBulloni>("frmBulloni", "mnuCollegamenti_0"),
                                    RigaDi<frmSaldature>("frmSaldature", "mnuCollegamenti_1"),
                                    RigaDi<frmGiunti>("frmGiunti", "MnuGiunto"),
                                    RigaDi<frmAcciaioCls>("frmAcciaioCls", "mnuAcciaioCls"),
                                    RigaDi<frmConnettori>("frmConnettori"),
                                    RigaDi<frmSuggerimento>("frmSuggerimento"),
                                    RigaDi<FrmScelta>("FrmScelta", "mnuScelta"),
                                    RigaDi<FrmConfronto>("FrmConfronto"),
                                    RigaDi<frmGamma>("frmGamma", "NormativaMain"),
                                    RigaDi<FrmInform>("FrmInform", "mnuHelp_1"),
                                    RigaDi<FrmClasseDoppioTU>("FrmClasseDoppioTU"),
                                    RigaDi<FrmInstabDoppioT>("FrmInstabDoppioT"),
                                    RigaDi<FrmClasseSagomiL>("FrmClasseSagomiL"),
                                    RigaDi<FrmInstabSagomiU>("FrmInstabSagomiU"),
                                    RigaDi<FrmInstabSagomiL>("FrmInstabSagomiL"),
                                    RigaDi<FrmMcRd>("FrmMcRd"),
                                    RigaDi<FrmPresFless>("FrmPresFless"),
                                    RigaDi<FrmMsverg>("FrmMsverg"),
                                    RigaDi<frmMsvergH1>("frmMsvergH1"),
                                    RigaDi<frmMsvergH2>("frmMsvergH2"),
                                    RigaDi<FrmVerifiche>("FrmVerifiche"),
                                    RigaDi<FrmInfoGiunti>("FrmInfoGiunti"),
                                    RigaDi<FrmRisultatiIntermedi>("FrmRisultatiIntermedi"),
                                    RigaDi<frmTimoshenko>("frmTimoshenko"),
                                    RigaDi<FrmPltSezione>("FrmPltSezione")})
        NavigaSchermi::Unico().Aggiunge(voce);
}

} // namespace sagomi
