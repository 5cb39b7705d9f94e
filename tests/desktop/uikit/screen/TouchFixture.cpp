#include "screen/TouchFixture.h"

#include <utility>

TouchFixture::Events TouchFixture::takeEvents() {
    return std::exchange(events, {});
}
