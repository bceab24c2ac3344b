// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/EntityChains.h"

#include <algorithm>

namespace clipvane {
namespace {

/// Calls `action` with the name in each "&name;" of `text`.
template <class Action>
void forEachReference(std::string_view text, Action action) {
    while (true) {
        const std::size_t start = text.find('&');
        if (start == std::string_view::npos) return;
        text.remove_prefix(start + 1);
        action(text.substr(0, text.find(';')));
    }
}

}  // namespace

EntityChains::Entity& EntityChains::called(std::string_view name) {
    if (const auto found = entities.find(name); found != entities.end()) return found->second;
    return entities.emplace(name, Entity()).first->second;
}

bool EntityChains::declare(std::string_view name, std::string_view text) {
    if (text.find('&') == std::string_view::npos) return true;  // it lengthens no chain
    Entity& entity = called(name);
    forEachReference(text, [&](std::string_view named) {
        Entity& next = called(named);
        next.users.push_back(&entity);
        entity.length = std::max(entity.length, next.length + 1);
        ++stepCount;
    });

    // The entities that named it before it was declared have longer chains now. It does not raise
    // itself again: a circle is followed once.
    std::vector<const Entity*> raised{&entity};
    while (!raised.empty()) {
        const Entity& next = *raised.back();
        if (next.length > most) return false;
        raised.pop_back();
        for (Entity* user : next.users) {
            ++stepCount;
            if (user == &entity || user->length > next.length) continue;
            user->length = next.length + 1;
            raised.push_back(user);
        }
    }
    return true;
}

}  // namespace clipvane
