#pragma once

#include <QIcon>

namespace clipvane {

/// A weather vane's arrow over the clips of a timeline: the pictures of packaging/icons, which the
/// program carries within itself.
QIcon applicationIcon();

}  // namespace clipvane
