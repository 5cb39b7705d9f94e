// Stand-ins of what cells and sheets are made of: constraints, stacks, buttons, bars and tables.
#import "StandIns.h"

typedef struct UIEdgeInsets {
    double top, left, bottom, right;
} UIEdgeInsets;

@interface CAGradientLayer : CALayer
@end

@interface NSLayoutConstraint : NSObject
@end

@interface NSLayoutAnchor : NSObject
@end

@interface NSLayoutXAxisAnchor : NSLayoutAnchor
@end

@interface NSLayoutYAxisAnchor : NSLayoutAnchor
@end

@interface NSLayoutDimension : NSLayoutAnchor
@end

@interface UILayoutGuide : NSObject
@end

@interface UITapGestureRecognizer : NSObject {
@public
    UIView* view; // not kept alive
}
@end

@interface UIButton : UIControl {
    UIImageView* imageView;
}
@end

@interface UIStackView : UIView
@end

@interface UINavigationBar : UIView {
@public
    NSArray* items;
}
@end

@interface UIScrollView : UIView
@end

@interface UITableView : UIScrollView
@end

@interface UITableViewCell : UIView {
    UIView* contentView;
}
- (id)initWithStyle:(NSInteger)style reuseIdentifier:(NSString*)identifier;
@end

@interface NSIndexPath (Rows)
+ (NSIndexPath*)indexPathForRow:(NSInteger)row inSection:(NSInteger)section;
- (NSInteger)section;
- (NSInteger)row;
@end

@interface PSListController (Table)
- (UITableView*)table;
- (double)tableView:(UITableView*)tableView heightForRowAtIndexPath:(NSIndexPath*)indexPath;
@end

@interface PSTableCell : UITableViewCell {
    PSSpecifier* specifier;
}
@end

@interface PSControlTableCell : PSTableCell
@end

@interface PSSwitchTableCell : PSControlTableCell
@end
