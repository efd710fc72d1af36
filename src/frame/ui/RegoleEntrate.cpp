#include "frame/ui/RegoleEntrate.h"

#include <QLabel>
#include <QLineEdit>

#include <algorithm>
#include <limits>

#include "frame/ui/Entrata.h"
#include "frame/ui/Esito.h"
#include "frame/ui/LineaFormula.h"

namespace sagomi {

namespace {

bool Scrivendo(const RegolaEntrata& rule) {
    return std::ranges::any_of(rule.caselle, [](const QLineEdit* box) { return InDigitazione(box); });
}

/// Why a rule is broken, after the correction where it has one and nobody is typing.
QString Esamina(const RegolaEntrata& rule) {
    QString reason = rule.motivo ? rule.motivo() : QString();
    if (reason.isEmpty() || !rule.corregge || Scrivendo(rule))
        return reason;
    rule.corregge();
    return rule.motivo();
}

} // namespace

bool RegoleEntrate::Applica() {
    QList<QPair<QLineEdit*, QString>> marks;
    violate_.clear();
    for (const RegolaEntrata& rule : regole_) {
        const QString reason = Esamina(rule);
        violate_.append(!reason.isEmpty() || (rule.manca && rule.manca()));
        // A number on its way to one that can stand is not marked: the correction will speak of it.
        const QString shown = rule.corregge && Scrivendo(rule) ? QString() : reason;
        QLineEdit* box = rule.caselle.front();
        const auto known = std::ranges::find_if(marks, [box](const auto& mark) { return mark.first == box; });
        if (known == marks.end())
            marks.append({box, shown});
        else if (known->second.isEmpty())
            known->second = shown;
    }
    for (const auto& [box, reason] : marks)
        SegnaEntrata(box, reason);
    return !violate_.contains(true);
}

void RegoleEntrate::SvuotaRisultati() const {
    for (qsizetype i = 0; i < violate_.size(); ++i)
        if (violate_[i])
            for (QWidget* result : regole_[i].risultati)
                SvuotaRisultato(result);
}

bool RegoleEntrate::Sta(const QLineEdit* casella) const {
    for (qsizetype i = 0; i < violate_.size(); ++i)
        if (violate_[i] && regole_[i].caselle.contains(const_cast<QLineEdit*>(casella)))
            return false;
    return true;
}

void SvuotaRisultato(QWidget* risultato) {
    if (auto* box = qobject_cast<QLineEdit*>(risultato))
        box->clear();
    else if (auto* label = qobject_cast<QLabel*>(risultato)) {
        MostraEsito(label, std::numeric_limits<double>::quiet_NaN());
        if (auto* line = qobject_cast<LineaFormula*>(label->parentWidget()))
            line->Evidenzia(-1); // of a sum that is not known no term governs
    }
}

} // namespace sagomi
