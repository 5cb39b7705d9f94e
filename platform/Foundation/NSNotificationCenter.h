#pragma once

class NSObject;

/// Who is told of what happens in the application.
class NSNotificationCenter {
public:
    [[nodiscard]] static NSNotificationCenter& defaultCenter();

    /// The object is told of nothing any more. It may be at its end.
    void removeObserver(const NSObject& observer);

private:
    NSNotificationCenter() = default;
};
