#include <cstddef>
#include <iostream>

#include "catalogue/CreaCartelle.h"

int main(int argc, char** argv) {
    return sagomi::CreaCartelle({argv, static_cast<std::size_t>(argc)}, std::cerr);
}
