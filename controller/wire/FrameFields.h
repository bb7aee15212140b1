#ifndef CONTROLLER_FRAMEFIELDS_H
#define CONTROLLER_FRAMEFIELDS_H

#include "FrameLog.h"

#include <vector>

/// Some bytes of a frame and what they are.
struct FrameField
{
    int offset;
    int size; ///< at least 1
    QString name;
    QString value; ///< as a person reads it
};

/// What every byte of the frame is, without a gap. What cannot be told is called "data".
std::vector<FrameField> fieldsOf(const LoggedFrame& frame);

/// The frame in a few words: "function 3, address 100, count 16".
QString summaryOf(const LoggedFrame& frame);

#endif
