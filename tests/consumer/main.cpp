#include <iostream>
#include <string>

#include "host.h"

int main() {
    const std::string got = host::report();
    const std::string want =
        "widget 7|Gr\xc3\xb6\xc3\x9f"
        "e|2.5 (Double)|1,5|2147483647";
    if (got != want) {
        std::cerr << "got  " << got << "\nwant " << want << '\n';
        return 1;
    }
    std::cout << got << '\n';
    return 0;
}
