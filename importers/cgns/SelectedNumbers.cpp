#include "importers/cgns/SelectedNumbers.h"

#include "importers/cgns/CgnsReader.h"

#include <algorithm>
#include <numeric>

namespace gtm::bundled {

std::vector<std::int64_t> selectedNumbers(const CgnsDescription::Selection& selection, std::int64_t last,
                                          std::size_t noOfThings, const char* what, const std::string& place)
{
    std::vector<std::int64_t> numbers = selection.values;
    std::sort(numbers.begin(), numbers.end());
    if (!numbers.empty() && (numbers.front() < 1 || numbers.back() > last)) {
        throw CgnsError(place + " reaches from " + std::to_string(numbers.front()) + " to " +
                        std::to_string(numbers.back()) + ", outside the zone of " + std::to_string(last) + " " + what +
                        "; export the file again.");
    }
    if (!selection.isRange) {
        numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
        return numbers;
    }
    if (numbers.size() != 2) {
        throw CgnsError(place + " has " + std::to_string(numbers.size()) +
                        " indices, which does not fit an unstructured zone; export the file again.");
    }
    const auto count = static_cast<std::size_t>(numbers.back() - numbers.front()) + 1;
    if (count > noOfThings) {
        throw CgnsError(place + " has more indices than the zone has " + what + "; export the file again.");
    }
    const std::int64_t first = numbers.front();
    numbers.resize(count);
    std::iota(numbers.begin(), numbers.end(), first);
    return numbers;
}

} // namespace gtm::bundled
