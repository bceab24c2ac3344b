// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace clipvane::cli {

/// What a command declares its options with. The library that reads the arguments stays behind it,
/// since its headers take longer to compile than all else here.
///
/// Names are "--output" or "-o,--output", `type` is what --help calls a value. What is set must
/// live until the arguments are read.
class Options {
  public:
    explicit Options(CLI::App& app) : app(app) {}

    /// Takes the value given, and says what is wrong with it, if anything.
    using Take = std::function<std::optional<std::string>(const std::string& value)>;

    void addFlag(const std::string& name, bool& flag, const std::string& description);
    void addValue(const std::string& name, const std::string& type, const Take& take,
                  const std::string& description);
    /// --help shows the choices as "csv|tsv".
    void addChoice(const std::string& name, std::string& chosen,
                   const std::vector<std::string>& choices, const std::string& description);
    /// An option that can be given several times.
    void addValues(const std::string& name, const std::string& type,
                   std::vector<std::string>& values, const std::string& description);
    /// What stands without an option, once or several times; it must be there and is not empty.
    void addNames(const std::string& title, std::vector<std::string>& names,
                  const std::string& description);
    /// Makes an option one that must be given.
    void require(const std::string& name);

  private:
    CLI::App& app;
};

}  // namespace clipvane::cli
