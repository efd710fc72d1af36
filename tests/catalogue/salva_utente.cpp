// Works on a user's workbook as the program does, for the scripts beside.

#include <cstdio>
#include <iostream>
#include <string>

#include "catalogue/LettoreXls.h"
#include "catalogue/SagomoUtente.h"
#include "catalogue/ScritturaRighe.h"
#include "sections/SezioneDoppioT.h"

using namespace sagomi;

namespace {

constexpr const char* simmetrico = "'DoppioT Simmetrico'$";
constexpr const char* asimmetrico = "'DoppioT Asimmetrico'$";

std::vector<Valore> Campi(const std::string& nome, const PiattiSaldati& piatti) {
    SezioneDoppioT s;
    s.fy = 235;
    InizializzaSaldata(s, piatti);
    s.Designation = NomeUtente(nome);
    return CampiRiga(s, s.SaldataAsimm ? RigheDoppioT::SaldateAsimmetriche : RigheDoppioT::Saldate);
}

void Scrive(const std::string& file, const char* tabella, const RigaScritta& riga) {
    ScriveRighe(file, ImprontaDi(file), tabella, {riga});
}

/// Adds rows until it is killed; says the name of each that lies on the disk.
[[noreturn]] void Aggiunge(const std::string& file, int da) {
    for (int i = da;; ++i) {
        const std::string nome = "riga " + std::to_string(i);
        Scrive(
            file, simmetrico,
            {{}, Campi(nome, {.h = 300.0 + i, .b = 200, .tf = 20, .tw = 10, .r = 6, .b2 = {}, .tf2 = {}})});
        std::puts(nome.c_str());
        std::fflush(stdout);
    }
}

/// An added row, a changed one, and in each sheet one that was typed with its dimensions only.
void Prova(const std::string& file) {
    InstallaCartellaUtente(file);
    const PiattiSaldati piatti{.h = 300, .b = 200, .tf = 20, .tw = 7.1, .r = 6, .b2 = {}, .tf2 = {}};
    Scrive(file, simmetrico, {{}, Campi("Trave \"più\" alta", piatti)});
    Scrive(file, simmetrico, {{}, Campi("da cambiare", piatti)});
    Scrive(file, simmetrico,
           {2, Campi("cambiata", {.h = 450, .b = 200, .tf = 20, .tw = 10, .r = 0, .b2 = {}, .tf2 = {}})});
    Scrive(file, simmetrico, {{}, {std::string("completata"), {}, 500.0, 250.0, 8.0, 15.0, 5.0}});
    Scrive(file, asimmetrico, {{}, {std::string("completata"), {}, 600.0, 300.0, 250.0, 12.0, 20.0, 12.0}});
    const auto acciaio = [](SezioneDoppioT& s) { s.fy = 235; };
    CompletaRighe(file, simmetrico, RigheDoppioT::Saldate, acciaio);
    CompletaRighe(file, asimmetrico, RigheDoppioT::SaldateAsimmetriche, acciaio);
}

/// Every cell: sheet, row, column, then the text, or the number with all its figures.
void Elenca(const std::string& file) {
    for (const Foglio& foglio : LeggeXls(file).fogli)
        for (std::size_t r = 0; r < foglio.righe.size(); ++r)
            for (std::size_t c = 0; c < foglio.righe[r].size(); ++c) {
                const Valore& v = foglio.Legge(r, c);
                if (Vuoto(v))
                    continue;
                std::printf("%s\t%zu\t%zu\t", foglio.nome.c_str(), r, c);
                if (const auto* numero = std::get_if<double>(&v))
                    std::printf("%.17g\n", *numero);
                else
                    std::printf("'%s\n", std::get<std::string>(v).c_str());
            }
}

} // namespace

int main(int argc, char** argv) {
    const std::string modo = argc > 2 ? argv[1] : "";
    try {
        if (modo == "nuova")
            InstallaCartellaUtente(argv[2]);
        else if (modo == "prova")
            Prova(argv[2]);
        else if (modo == "elenca")
            Elenca(argv[2]);
        else if (modo == "aggiunge" && argc > 3)
            Aggiunge(argv[2], std::stoi(argv[3]));
        else
            return 2;
    } catch (const std::exception& e) {
        std::cerr << e.what() << '\n';
        return 1;
    }
    return 0;
}
