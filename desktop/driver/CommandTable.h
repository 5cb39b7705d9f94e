#pragma once

#include "Answer.h"
#include "CommandLine.h"

#include <functional>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// The commands of the driver by name. Takes lines apart, checks how many arguments there are, and runs what
/// the line asks for. Filled by the groups of commands; made by the driver.
class CommandTable {
public:
    using Arguments = std::vector<CommandLine::Word>;

    struct Command {
        std::string usage; ///< the name and the arguments, such as "tap LABEL [#N]"
        std::size_t fewest = 0;
        std::size_t most = 0;
        /// Whether the last of the `most` arguments is all that is left of the line, as it stands.
        bool lastIsRest = false;
        std::function<Answer(const Arguments&)> run;
    };

    static constexpr auto unlimited = std::numeric_limits<std::size_t>::max();

    /// A name that is there already is given the new command.
    void add(Command command);

    /// \param line any bytes
    [[nodiscard]] Answer run(std::string_view line) const;

private:
    std::map<std::string, Command, std::less<>> commands_;
};
