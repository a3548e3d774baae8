#include "physics/report/ListWriter.h"

namespace physics {

void appendList(std::string& text, std::string_view label, const std::vector<std::string>& items,
                const ListFormat& format)
{
    const bool hasBrackets = format.brackets != Brackets::None;
    const bool isSquare = format.brackets == Brackets::Square;
    const std::size_t labelEnd = format.column + label.size();
    if (format.column == 0)
        text += format.prefix;
    text += label;
    std::size_t column = labelEnd;
    if (hasBrackets) {
        text += isSquare ? '[' : '{';
        ++column;
    }
    bool isFirst = true;
    for (const std::string& item : items) {
        if (!isFirst)
            text += format.separator;
        isFirst = false;
        if (column > format.width) {
            column = labelEnd + (hasBrackets ? 1 : 0);
            text += '\n';
            text += format.prefix;
            text.append(column, ' ');
        }
        text += item;
        column += item.size() + 2; // two for the separator, whatever it is and also in front of the first
    }
    if (hasBrackets)
        text += isSquare ? ']' : '}';
    if (format.brackets == Brackets::BracesWithStar)
        text += '*';
    if (format.endsLine)
        text += '\n';
}

} // namespace physics
