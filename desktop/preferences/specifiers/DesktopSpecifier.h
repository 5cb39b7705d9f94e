#pragma once

#include "Foundation/PropertyList.h"
#include "ObjectiveC/Weak.h"
#include "Preferences/PSSpecifier.h"
#include "UIKit/UIImage.h"
#include "specifiers/SpecifierKind.h"

#include <functional>
#include <initializer_list>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>

/// One row of a page as the framework reads it: its properties, and whom its messages go to. Made from an
/// item of a list, or by the host; owned by the page. The texts among its properties are already localised.
/// A property of another type than it must have counts as absent here, and is what it is to `propertyForKey`.
class DesktopSpecifier final : public PSSpecifier {
public:
    explicit DesktopSpecifier(PropertyList::Dictionary properties) : properties_(std::move(properties)) {}

    /// \param target gets the row's messages; not kept alive
    DesktopSpecifier(PropertyList::Dictionary properties, NSObject& target)
        : properties_(std::move(properties)),
          target_(&target) {}

    [[nodiscard]] const PropertyList::Dictionary& properties() const { return properties_; }

    [[nodiscard]] SpecifierKind kind() const;

    /// What the list calls the kind; a name unknown here too.
    [[nodiscard]] std::string kindName() const { return textForKey("cell"); }

    /// The property "id", else "key", else "label"; empty when there is none of them.
    [[nodiscard]] std::string identifier() const;

    [[nodiscard]] std::string label() const { return textForKey("label"); }

    [[nodiscard]] bool isEnabled() const { return boolForKey("enabled", true); }

    /// The height that the list asks for, in points.
    [[nodiscard]] std::optional<double> height() const;

    /// A text property; empty when there is none.
    [[nodiscard]] std::string textForKey(std::string_view key) const;

    /// A property that reads as a yes or a no.
    [[nodiscard]] bool boolForKey(std::string_view key, bool otherwise) const;

    /// A property that is an array; null when it is none.
    [[nodiscard]] const PropertyList::Array* arrayForKey(std::string_view key) const;

    /// Whether a value can be a row's height in points: a number that is neither negative nor beyond reason.
    [[nodiscard]] static bool isHeight(const PropertyList& value);

    /// Whether a value reads as a yes or a no: a number or a text.
    [[nodiscard]] static bool isYesOrNo(const PropertyList& value);

    /// What is shown before the label; empty for none.
    [[nodiscard]] Ref<UIImage> icon() const { return imageForKey("icon"); }

    /// The picture that the list names under `key`; empty when there is none.
    [[nodiscard]] Ref<UIImage> imageForKey(std::string_view key) const;

    void setImage(std::string key, const Ref<UIImage>& image) {
        images_.insert_or_assign(std::move(key), image);
    }

    /// The head of the group that the row stands in; empty when there is none.
    [[nodiscard]] Ref<DesktopSpecifier> group() const { return group_.strong(); }

    void setGroup(const Ref<DesktopSpecifier>& group) { group_ = Weak<DesktopSpecifier>(group); }

    /// Of a group that keeps no value, which of its rows was chosen last; empty for none.
    [[nodiscard]] Ref<DesktopSpecifier> lastChosen() const { return lastChosen_.strong(); }

    void setLastChosen(DesktopSpecifier& row) { lastChosen_ = Weak<DesktopSpecifier>(&row); }

    /// Whether the list says where the row's value is kept, or by which message.
    [[nodiscard]] bool keepsValue() const;

    /// The cell that shows the row; empty while none does. Not kept alive.
    [[nodiscard]] Ref<NSObject> cell() const { return cell_.strong(); }

    void setCell(NSObject& cell) { cell_ = Weak<NSObject>(&cell); }

    void forgetCell() { cell_ = {}; }

    /// The row's value: what the target answers to the message named by "get", which is by default
    /// "readPreferenceValue:".
    [[nodiscard]] std::optional<PropertyList> performGetter();

    /// Sends the target the message named by "set", which is by default "setPreferenceValue:specifier:".
    void performSetter(const std::optional<PropertyList>& value);

    /// What the target answers to the message that the list names under `key`; nothing when it names none.
    [[nodiscard]] std::optional<PropertyList> performDataSource(std::string_view key);

    /// Sends the target the message that the list names under `key`, with the row. Nothing happens when it
    /// names none.
    void performMessage(std::string_view key);

    /// Sends the target the message named by "action", else by "buttonAction".
    void performAction();

    /// Whether the list names an action.
    [[nodiscard]] bool hasAction() const;

    // PSSpecifier:
    /// A row that its list gives no "id" has its identifier for one.
    [[nodiscard]] std::optional<PropertyList> propertyForKey(std::string_view key) const override;
    [[nodiscard]] Ref<NSObject> propertyObjectForKey(std::string_view key) const override;

    [[nodiscard]] Ref<NSObject> target() const override { return target_.strong(); }

private:
    /// A message that the target does not answer is logged once.
    MessageValue send(const std::string& selector, std::initializer_list<MessageValue> arguments);

    PropertyList::Dictionary properties_;
    Weak<NSObject> target_;
    Weak<NSObject> cell_;
    Weak<DesktopSpecifier> group_;
    Weak<DesktopSpecifier> lastChosen_;
    std::map<std::string, Ref<UIImage>, std::less<>> images_; ///< by the property that names them
    std::set<std::string> unanswered_;                        ///< the messages that have been logged
};
