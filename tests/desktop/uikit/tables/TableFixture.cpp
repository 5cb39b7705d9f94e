#include "tables/TableFixture.h"

#include "RectGeometry.h"

NotedContent::Section NotedContent::sectionOf(std::size_t count) {
    Section section;
    for (std::size_t row = 0; row < count; ++row)
        section.rows.push_back({.title = std::to_string(row)});
    return section;
}

std::optional<double> NotedContent::rowHeight(IndexPath row) {
    ++heightsAsked;
    return sections[row.section].rows[row.row].height;
}

Ref<UITableViewCell> NotedContent::cellForRow(IndexPath row) {
    auto cell = peerOf<UITableViewPeer>(table_).dequeueReusableCell(reuseIdentifier);
    if (!cell) {
        ++cellsMade;
        cell = adopt(new UITableViewCell);
        EXPECT_TRUE(cell->initWithStyle(UITableViewCellStyle::Default, reuseIdentifier));
    }
    peerOf<UITableViewCellPeer>(*cell).textLabel().setText(sections[row.section].rows[row.row].title);
    if (prepare)
        prepare(row, *cell);
    return cell;
}

TableFixture::TableFixture(const Screen::Options& options) : Phone(options) {
    window->addSubview(table_);
}

TableFixture::~TableFixture() {
    peer().setContent(nullptr);
}

void TableFixture::show() {
    table_->setFrame(screen.bounds());
    peer().setContent(&content_);
    layOut();
}

CGPoint TableFixture::middleOf(IndexPath row) {
    const auto rect = table_->peer().convertToScreen(peer().rectForRow(row));
    return {CGRectGetMidX(rect), CGRectGetMidY(rect)};
}

UITableViewCell& TableFixture::cell(IndexPath row) const {
    return *peer().cellForRow(row);
}

CGRect TableFixture::shownFrame(IndexPath row) const {
    const auto& layer = cell(row).layer().peer();
    const auto position = layer.shownValue(LayerProperty::Position);
    const auto size = layer.shownValue(LayerProperty::BoundsSize);
    return CGRectMake(position[0] - size[0] / 2, position[1] - size[1] / 2, size[0], size[1]);
}
