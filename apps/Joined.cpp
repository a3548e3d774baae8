#include "apps/Joined.h"

namespace physics::apps {

std::string joined(const std::vector<std::string>& items)
{
    std::string text;
    for (const std::string& item : items) {
        text += (text.empty() ? "" : ", ") + item;
    }
    return text.empty() ? "-" : text;
}

std::string joined(const std::vector<int>& numbers)
{
    std::vector<std::string> items;
    for (const int number : numbers) {
        items.push_back(std::to_string(number));
    }
    return joined(items);
}

std::string counted(std::size_t number, const std::string& one, const std::string& many)
{
    return std::to_string(number) + " " + (number == 1 ? one : many.empty() ? one + "s" : many);
}

} // namespace physics::apps
