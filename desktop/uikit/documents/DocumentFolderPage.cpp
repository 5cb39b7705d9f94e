#include "documents/DocumentFolderPage.h"

#include "DesktopColor.h"
#include "DesktopImage.h"
#include "Device.h"
#include "Foundation/NSDateFormatter.h"
#include "Foundation/NSString.h"
#include "ObjectiveC/Class.h"
#include "SystemTexts.h"
#include "UIKit/UINavigationController.h"
#include "UIKit/UITableView.h"
#include "controllers/DesktopBarButtonItem.h"
#include "controllers/DesktopNavigationItem.h"
#include "controllers/UIViewControllerPeer.h"
#include "documents/DocumentTypes.h"
#include "documents/FileSizeText.h"
#include "tables/TableContent.h"
#include "tables/UITableViewCellPeer.h"
#include "tables/UITableViewPeer.h"

#include <memory>
#include <utility>

namespace {

const Class classObject = Class::define<DocumentFolderPage, UIViewController>("DocumentFolderPage");

constexpr auto reuseIdentifier = "document";
constexpr double symbolSize = 24;
constexpr double symbolColumn = 29; ///< as wide as the icons of settings

std::string detailOf(const DocumentEntry& entry) {
    const auto formatter = NSDateFormatter::dateFormatter();
    formatter->setDateStyle(NSDateFormatterStyle::Short);
    formatter->setTimeStyle(NSDateFormatterStyle::Short);
    const auto date = formatter->stringFromDate(entry.attributes.fileCreationDate);
    return entry.isFolder() ? date : date + " – " + fileSizeText(entry.attributes.fileSize);
}

class DocumentFolderPagePeer final : public UIViewControllerPeer, public TableContent {
public:
    using Object = DocumentFolderPage;

    DocumentFolderPagePeer(std::string path, DocumentFolderPage::Rules rules)
        : path_(std::move(path)),
          rules_(std::move(rules)),
          entries_(documentsIn(path_)) {
        setTitle(path_ == Device::documentsPath ? systemText("Documents") : lastPathComponent(path_));
    }

    ~DocumentFolderPagePeer() override { table().setContent(nullptr); }

    DocumentFolderPagePeer(const DocumentFolderPagePeer&) = delete;
    DocumentFolderPagePeer& operator=(const DocumentFolderPagePeer&) = delete;

    [[nodiscard]] const std::vector<DocumentEntry>& entries() const { return entries_; }

    [[nodiscard]] bool isSelectable(const DocumentEntry& entry) const {
        return entry.isFolder() || isOfOneOf(rules_.types, entry.name);
    }

    // UIViewControllerPeer:
    [[nodiscard]] Ref<UIView> makeView() override;
    void viewDidLoad() override;
    void viewDidAppear(bool animated) override;

    // TableContent:
    [[nodiscard]] std::size_t sectionCount() const override { return 1; }

    [[nodiscard]] std::size_t rowCount(std::size_t /*section*/) const override { return entries_.size(); }

    [[nodiscard]] std::optional<double> rowHeight(IndexPath /*row*/) override { return std::nullopt; }

    [[nodiscard]] Ref<UITableViewCell> cellForRow(IndexPath row) override;

    [[nodiscard]] TableCaption header(std::size_t /*section*/) override { return {}; }

    [[nodiscard]] TableCaption footer(std::size_t section) override;

    [[nodiscard]] bool isSelectable(IndexPath row) override { return isSelectable(entries_[row.row]); }

    void didSelectRow(IndexPath row) override;

private:
    [[nodiscard]] UITableViewPeer& table() const { return peerOf<UITableViewPeer>(*tableView_); }

    const std::string path_;
    const DocumentFolderPage::Rules rules_;
    const std::vector<DocumentEntry> entries_;
    const Ref<UITableView> tableView_ = make<UITableView>();
};

Ref<UIView> DocumentFolderPagePeer::makeView() {
    tableView_->setBackgroundColor(DesktopColor::system(SystemColor::GroupedBackground));
    table().setAlwaysBounceVertical(true);
    table().setContent(this);
    return tableView_;
}

void DocumentFolderPagePeer::viewDidLoad() {
    const auto cancel =
        make<DesktopBarButtonItem>(DesktopBarButtonItem::Content{.title = systemText("Cancel"),
                                                                 .image = {},
                                                                 .menu = {},
                                                                 .action = rules_.cancelled,
                                                                 .target = {},
                                                                 .selector = {},
                                                                 .emphasised = false});
    // On the pages of further folders the way back stands at the left.
    const auto isFirst =
        controller().navigationController() == nullptr ||
        controller().navigationController()->peer().children().front().get() == &controller();
    if (isFirst)
        navigationItem().setLeftBarButtonItem(cancel);
    else
        navigationItem().setRightBarButtonItem(cancel);
}

void DocumentFolderPagePeer::viewDidAppear(bool /*animated*/) {
    table().deselectRow(true);
}

TableCaption DocumentFolderPagePeer::footer(std::size_t /*section*/) {
    TableCaption caption;
    if (entries_.empty())
        caption.text = systemText("This folder is empty.");
    caption.alignment = NSTextAlignment::Center;
    return caption;
}

Ref<UITableViewCell> DocumentFolderPagePeer::cellForRow(IndexPath row) {
    const auto& entry = entries_[row.row];
    auto cell = table().dequeueReusableCell(reuseIdentifier);
    if (!cell)
        cell = makeWith<UITableViewCell>(&UITableViewCell::initWithStyle, UITableViewCellStyle::Subtitle,
                                         reuseIdentifier);
    auto& shown = peerOf<UITableViewCellPeer>(*cell);
    shown.textLabel().setText(entry.name);
    shown.textLabel().setTextColor(
        DesktopColor::system(isSelectable(entry) ? SystemColor::Label : SystemColor::TertiaryLabel));
    shown.detailTextLabel().setText(detailOf(entry));
    shown.imageView().setImage(
        DesktopImage::symbol(entry.isFolder() ? "folder.fill" : "doc.fill", symbolSize));
    shown.setImageColumn(symbolColumn);
    shown.imageView().setTintColor(
        DesktopColor::system(entry.isFolder() ? SystemColor::Cyan : SystemColor::Gray2));
    shown.setAccessoryType(entry.isFolder() ? UITableViewCellAccessoryType::DisclosureIndicator
                                            : UITableViewCellAccessoryType::None);
    return cell;
}

void DocumentFolderPagePeer::didSelectRow(IndexPath row) {
    const auto& entry = entries_[row.row];
    const auto path = stringByAppendingPathComponent(path_, entry.name);
    if (!entry.isFolder()) {
        table().deselectRow(true);
        rules_.chosen(path);
        return;
    }
    if (const auto navigation = controller().navigationController())
        navigation->pushViewController(make<DocumentFolderPage>(path, rules_), true);
}

} // namespace

DocumentFolderPage::DocumentFolderPage(std::string path, Rules rules)
    : UIViewController(std::make_unique<DocumentFolderPagePeer>(std::move(path), std::move(rules))) {}

const std::vector<DocumentEntry>& DocumentFolderPage::entries() const {
    return peerOf<DocumentFolderPagePeer>(*this).entries();
}

bool DocumentFolderPage::isSelectable(const DocumentEntry& entry) const {
    return peerOf<DocumentFolderPagePeer>(*this).isSelectable(entry);
}
