#include "tools/cmyk/PressModel.h"
#include "tools/cmyk/PressTable.h"
#include "tools/cmyk/ProfileWriter.h"
#include "tools/cmyk/SeparationTable.h"
#include "tools/cmyk/WholeFile.h"

#include <exception>
#include <iostream>

// Builds Tintra's own default CMYK profile: make_cmyk_profile OUT.icc
int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: make_cmyk_profile OUT.icc\n";
        return 2;
    }
    try {
        const tintra::cmyk::PressModel press;
        const tintra::cmyk::PressTable colours(press);
        const tintra::cmyk::SeparationTable inks(press, colours);
        tintra::cmyk::writeWholeFile(arguments[1],
                                     tintra::cmyk::profileBytes(press, colours, inks));
    } catch (const std::exception& error) {
        std::cerr << "make_cmyk_profile: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
