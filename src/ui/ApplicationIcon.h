#pragma once

#include <QIcon>

namespace clipvane {

/// A weather vane's arrow over the clips of a timeline.
QIcon applicationIcon();

}  // namespace clipvane
