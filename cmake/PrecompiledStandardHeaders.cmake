# The C++ library's headers that most sources come to include.
set(PRECOMPILED_STANDARD <algorithm> <array> <chrono> <cmath> <cstddef> <cstdint> <expected> <functional> <map> <memory>
    <mutex> <optional> <set> <span> <string> <string_view> <utility> <variant> <vector>)
