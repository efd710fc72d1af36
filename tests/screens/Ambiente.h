#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "Registratore.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"
#include "frame/ui/NavigaSchermi.h"
#include "screens/GeneraleSchermi.h"
#include "screens/frmDoppioT.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi::prove {

/// A control by its object name; a wrong name lists nothing and stops the test.
template <typename T> T* Trova(const QObject* screen, const char* name) {
    auto* control = screen->findChild<T*>(QString::fromLatin1(name));
    if (control == nullptr)
        throw std::runtime_error(std::string("no control of that kind is called ") + name);
    return control;
}

inline std::string Testo(const QObject* screen, const char* name) {
    return Trova<QLineEdit>(screen, name)->text().toStdString();
}

/// A text of the screens written with point and comma, in the separators of the locale that the test runs in.
inline std::string Locale(std::string text) {
    std::string result;
    for (const char c : text)
        result += c == '.'   ? Utf8DaCodice(CarDecimale)
                  : c == ',' ? Utf8DaCodice(CarMigliaia)
                             : std::string(1, c);
    return result;
}

/// The program's folder in a temporary place, with the real workbook and help; the settings at their start.
class AmbienteSchermi : public testing::Test {
protected:
    void SetUp() override {
        RipristinaGenerale();
        PathProgramma = cartella.path().toStdString();
        const std::filesystem::path built = SAGOMI_BIN;
        for (const char* file : {"Sagomi.xls", "Sagomi.hlp"})
            std::filesystem::copy_file(built / file, PathProgramma / file);
        std::filesystem::permissions(PathProgramma / "Sagomi.xls", std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add);
    }

    void TearDown() override {
        NavigaSchermi::Unico().ScaricaTutti();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        RipristinaGenerale();
    }

    /// Starts the program and gives its first screen, without the warning about the separators.
    frmDoppioT& Avvia() {
        InizializzaProgramma();
        registratore.testi.clear();
        registratore.messaggi.clear();
        return dynamic_cast<frmDoppioT&>(*NavigaSchermi::Unico().Trova(QStringLiteral("frmDoppioT")));
    }

    static SezioneDoppioT& Sezione() { return *std::get<std::shared_ptr<SezioneDoppioT>>(SezioneCorrente); }

    /// Goes to a section of the table by its name.
    static void VaiA(SchermoSezione& screen, const char* name) {
        ASSERT_TRUE(screen.Data1->Recordset().CercaRecord(name)) << name;
    }

    QTemporaryDir cartella;
    Registratore registratore;
};

} // namespace sagomi::prove
