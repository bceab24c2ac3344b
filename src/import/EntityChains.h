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

/// How long the chains are in which the entities of an XML document name one another. A parser
/// follows a chain by calling itself, so that its length is to be known before the first use.
class EntityChains {
  public:
    /// `most`: entities that may each name the next. The last one, which names none, comes beyond.
    explicit EntityChains(std::size_t most) : most(most) {}

    /// Takes in the declaration of the entity `name`. `text` is what it stands for. Entities may be
    /// declared before those that they name. False when there is a chain longer than `most` now;
    /// then there is no use in going on. Entities in a circle are a chain, or too long a one.
    /// Throws when memory runs out.
    bool declare(std::string_view name, std::string_view text);

    /// The steps that all this has taken.
    std::size_t steps() const { return stepCount; }

  private:
    struct Entity {
        std::size_t length = 0;  ///< of the longest chain from here; 0 when it names none
        std::vector<Entity*> users;
    };

    Entity& called(std::string_view name);

    std::size_t most;
    /// A tree: the names that fall together in a hash table can be guessed.
    std::map<std::string, Entity, std::less<>> entities;
    std::size_t stepCount = 0;
};

}  // namespace clipvane
