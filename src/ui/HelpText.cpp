// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/HelpText.h"

namespace clipvane {

std::string_view helpText() {
    return "Clipvane\n"
           "\n"
           "Instructions\n"
           "\n"
           "1. Click Open Timeline and choose an EDL, XML, FCPXML, or XMEML file.\n"
           "2. The app reads timeline FPS from the file when available. If no FPS is found, it"
           " uses 24 fps as the reference.\n"
           "3. Review all timeline events in the Event Viewer on the left.\n"
           "4. Use the Global FPS dropdown in the top bar to convert the loaded event list to "
           "a standard frame rate.\n"
           "5. Select an event to see clip name, reel ID, source timecodes, record timecodes, "
           "calculated durations, FPS source, track, and format on the right.\n"
           "6. Source and record timecodes, duration calculations, Copy Info, CSV export, and "
           "EDL export use the selected global FPS.\n"
           "7. Add or edit comments for the selected event in the Comments field.\n"
           "8. Use Copy Info to copy the selected event details, FPS, durations, and comments.\n"
           "9. Use Remove Event to remove the selected event from the active export list.\n"
           "10. Export CSV for a spreadsheet report containing event details, FPS, durations, "
           "and comments.\n"
           "11. Export EDL to create a new edited EDL event list from the remaining events.\n"
           "\n"
           "Notes\n"
           "\n"
           "Import supports EDL, XML, FCPXML, and XMEML files. Export currently supports CSV "
           "reports and edited EDL files. FPS is detected from common file metadata such as "
           "frame rate, timebase, and FCPXML frameDuration values when available. AAF is not "
           "included because reliable AAF support requires dedicated interchange libraries.\n"
           "\n"
           "Clipvane is made by the Clipvane developers.\n"
           "Its man page and its README tell what to do with an EDL that names no frame rate.";
}

}  // namespace clipvane
