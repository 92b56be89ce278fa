#include "Random.h"

namespace orlo::world {

std::string DrawTailNumber(Random& random, std::string_view pattern) {
    std::string result(pattern);
    for (char& character : result) {
        if (character == '!') character = static_cast<char>('0' + random.Between(0, 9));
        if (character == '.') character = static_cast<char>('A' + random.Between(0, 25));
    }
    return result;
}

}  // namespace orlo::world
