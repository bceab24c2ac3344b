// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace clipvane {

/// The lengths of the chains in which the entities of an XML document name one another. A parser
/// follows a chain by calling itself, so a chain's length must be known before its first use.
class EntityChains {
  public:
    /// `most`: how many entities in a chain may name the next one. The last of a chain names none
    /// and is not counted.
    explicit EntityChains(std::size_t most) : most(most) {}

    /// Adds the declaration of the entity `name`, which stands for `text`. An entity may be
    /// declared before those that it names. False when a chain is now longer than `most`; then
    /// reading should stop. Entities in a circle count as a chain, or as one that is too long.
    /// Throws when memory runs out.
    bool declare(std::string_view name, std::string_view text);

    /// The steps taken so far.
    std::size_t steps() const { return stepCount; }

  private:
    struct Entity {
        std::size_t length = 0;  ///< of the longest chain from here; 0 when it names none
        std::vector<Entity*> users;
    };

    Entity& called(std::string_view name);

    std::size_t most;
    /// A tree, because a hostile document can choose names that collide in a hash table.
    std::map<std::string, Entity, std::less<>> entities;
    std::size_t stepCount = 0;
};

}  // namespace clipvane
