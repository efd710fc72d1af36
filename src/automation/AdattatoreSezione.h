#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusMessage>

#include "automation/SezioneSagomi.h"

namespace sagomi {

class ServizioSagomi;

/// The interface that the session bus shows: the members of SezioneSagomi in their order, what may be called,
/// what is raised. Calls go on to the service; the signals stand here to be introspected, the service sends
/// them itself, in their order.
class AdattatoreSezione : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "Sagomi_v6.SezioneSagomi")
    Q_PROPERTY(QString TipoSezione READ TipoSezione)
    Q_PROPERTY(QString Designation READ Designation)
    Q_PROPERTY(double h READ h)
    Q_PROPERTY(double b READ b)
    Q_PROPERTY(double tw READ tw)
    Q_PROPERTY(double tf READ tf)
    Q_PROPERTY(double r1 READ r1)
    Q_PROPERTY(double r2 READ r2)
    Q_PROPERTY(double r READ r)
    Q_PROPERTY(double bAlaInf READ bAlaInf)
    Q_PROPERTY(double tAlaInf READ tAlaInf)
    Q_PROPERTY(bool SaldataAsimm READ SaldataAsimm)
    Q_PROPERTY(bool Saldata READ Saldata)
    Q_PROPERTY(double Area READ Area)
    Q_PROPERTY(double Jz READ Jz)
    Q_PROPERTY(double Jy READ Jy)
    Q_PROPERTY(double Wply READ Wply)
    Q_PROPERTY(double Wplz READ Wplz)
    Q_PROPERTY(double fy READ fy)
    Q_PROPERTY(short VersioneSezioneSagomi READ VersioneSezioneSagomi)
    Q_PROPERTY(bool Doppi READ Doppi)
    Q_PROPERTY(double dDoppi READ dDoppi)
    Q_PROPERTY(bool DoppiCorto READ DoppiCorto)
    Q_PROPERTY(QString CurvaY READ CurvaY)
    Q_PROPERTY(QString CurvaZ READ CurvaZ)
public:
    AdattatoreSezione(ServizioSagomi& servizio, const SezioneSagomi& sezione);

    [[nodiscard]] QString TipoSezione() const { return QString::fromStdString(sezione_.TipoSezione); }
    [[nodiscard]] QString Designation() const { return QString::fromStdString(sezione_.Designation); }
    [[nodiscard]] double h() const { return sezione_.h; }
    [[nodiscard]] double b() const { return sezione_.b; }
    [[nodiscard]] double tw() const { return sezione_.tw; }
    [[nodiscard]] double tf() const { return sezione_.tf; }
    [[nodiscard]] double r1() const { return sezione_.r1; }
    [[nodiscard]] double r2() const { return sezione_.r2; }
    [[nodiscard]] double r() const { return sezione_.r; }
    [[nodiscard]] double bAlaInf() const { return sezione_.bAlaInf; }
    [[nodiscard]] double tAlaInf() const { return sezione_.tAlaInf; }
    [[nodiscard]] bool SaldataAsimm() const { return sezione_.SaldataAsimm; }
    [[nodiscard]] bool Saldata() const { return sezione_.Saldata; }
    [[nodiscard]] double Area() const { return sezione_.Area; }
    [[nodiscard]] double Jz() const { return sezione_.Jz; }
    [[nodiscard]] double Jy() const { return sezione_.Jy; }
    [[nodiscard]] double Wply() const { return sezione_.Wply; }
    [[nodiscard]] double Wplz() const { return sezione_.Wplz; }
    [[nodiscard]] double fy() const { return sezione_.fy; }
    [[nodiscard]] short VersioneSezioneSagomi() const { return sezione_.VersioneSezioneSagomi; }
    [[nodiscard]] bool Doppi() const { return sezione_.Doppi; }
    [[nodiscard]] double dDoppi() const { return sezione_.dDoppi; }
    [[nodiscard]] bool DoppiCorto() const { return sezione_.DoppiCorto; }
    [[nodiscard]] QString CurvaY() const { return QString::fromStdString(sezione_.CurvaY); }
    [[nodiscard]] QString CurvaZ() const { return QString::fromStdString(sezione_.CurvaZ); }

    /// All properties by name, as the bus carries them.
    [[nodiscard]] QVariantMap Valori() const;

public slots: // NOLINT: a word of the toolkit
    void Class_Initialize(const QDBusMessage& chiamata);
    void Quit(const QDBusMessage& chiamata);

signals:
    void ComunicaSagomo();
    void SagomiQuit();

private:
    ServizioSagomi& servizio_;
    const SezioneSagomi& sezione_;
};

} // namespace sagomi
