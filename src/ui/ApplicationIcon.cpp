#include "ui/ApplicationIcon.h"

#include <QString>

namespace clipvane {

QIcon applicationIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        icon.addFile(QString(":/icons/clipvane-%1.png").arg(size), QSize(size, size));
    }
    return icon;
}

}  // namespace clipvane
