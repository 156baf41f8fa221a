#include <iostream>

#include "toolkit/svg.h"
#include "ui/pictures.h"

/// Prints the icon of the game as SVG on standard output.
int main() { std::cout << IconMarkup(CheckerBoardPicture); }
