#include <iostream>

#include "catalogue/Lettore.h"
#include "sections/Eurocod3.h"

int main(int /*argc*/, char** argv) {
    sagomi::Lettore reader;
    reader.DatabaseName(argv[1]);
    reader.RecordSource("SELECT * FROM [IPE$]");
    reader.Refresh();
    std::cout << reader.Righe() << " righe, epsilon " << sagomi::Epsilon(235) << "\n";
}
