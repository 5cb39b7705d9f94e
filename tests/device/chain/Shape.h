#pragma once

/// A class whose virtual functions are all inline, so that every object that makes one has its own copy of
/// the virtual table.
class Shape {
public:
    virtual ~Shape() = default;

    [[nodiscard]] virtual int sides() const { return 0; }
};

/// The same from a template.
template <int count>
class Polygon final : public Shape {
public:
    [[nodiscard]] int sides() const override { return count; }
};

/// A triangle that another object of the bundle makes. The caller deletes it.
[[nodiscard]] Shape* makeTriangleElsewhere();
