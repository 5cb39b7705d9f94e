#include "alerts/AlertLayout.h"

#include <algorithm>

AlertLayout::AlertLayout(const std::vector<double>& titleWidths, double pixel)
    : count_(titleWidths.size()),
      rowHeight_(buttonHeight + pixel),
      isBeside_(count_ == 2 && std::ranges::all_of(titleWidths, [](double title) {
                    return title <= width / 2 - 2 * buttonMargin;
                })) {}

std::vector<std::size_t> AlertLayout::order(const std::vector<UIAlertActionStyle>& styles) const {
    std::vector<std::size_t> order;
    order.reserve(styles.size());
    for (const auto cancelling : {isBeside_, !isBeside_}) {
        for (std::size_t index = 0; index < styles.size(); ++index) {
            if ((styles[index] == UIAlertActionStyle::Cancel) == cancelling)
                order.push_back(index);
        }
    }
    return order;
}

double AlertLayout::height() const {
    return rowHeight_ * static_cast<double>(isBeside_ ? 1 : count_);
}

CGRect AlertLayout::frame(std::size_t place) const {
    const auto number = static_cast<double>(place);
    if (isBeside_)
        return CGRectMake(number * width / 2, 0, width / 2, rowHeight_);
    return CGRectMake(0, number * rowHeight_, width, rowHeight_);
}
