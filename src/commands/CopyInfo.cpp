// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/CopyInfo.h>

#include <clipvane/FrameRate.h>
#include <clipvane/Timecode.h>

namespace clipvane {

std::string copyInfoText(const TimelineEvent& event, double fps, std::string_view fpsSource) {
    std::string text;
    text += "Event: " + event.eventNumber;
    text += "\nClip Name: " + event.clipName;
    text += "\nReel ID: " + event.reelID;
    text += "\nFPS: " + formatFPS(fps) + " fps (";
    text += fpsSource;
    text += ")";
    text += "\nSource: " + event.sourceIn + " - " + event.sourceOut;
    text += "\nSource Duration: " + durationDisplay(event.sourceIn, event.sourceOut, fps);
    text += "\nRecord: " + event.recordIn + " - " + event.recordOut;
    text += "\nRecord Duration: " + durationDisplay(event.recordIn, event.recordOut, fps);
    text += "\nTrack: " + event.track;
    text += "\nComments: " + event.comments;
    return text;
}

}  // namespace clipvane
