#include "tables/TableMetrics.h"

#include <algorithm>
#include <cmath>

double TableMetrics::cardWidth() const {
    return std::max(0.0, width_ - 2 * margin());
}

double TableMetrics::textWidth() const {
    return std::max(0.0, width_ - 2 * textLeft());
}

double TableMetrics::emptyHeaderHeight(bool first) const {
    return first ? firstSectionTop : rounded(sectionGap / 2);
}

double TableMetrics::emptyFooterHeight() const {
    return rounded(sectionGap / 2);
}

double TableMetrics::headerHeight(double textHeight, bool first) const {
    return rounded((first ? firstHeaderTextTop : headerTextTop) + textHeight + headerTextBottom);
}

double TableMetrics::footerHeight(double textHeight) const {
    return rounded(footerTextTop + textHeight + footerTextBottom);
}

double TableMetrics::rounded(double length) const {
    constexpr auto slack = 1e-6; // of a pixel: what sums of thirds are off by
    return std::ceil(length * scale_ - slack) / scale_;
}
