#pragma once
// Where one run of the player sends its decoded frames: the sound device (DeviceOutput) or a
// WAV file (WavOutput). Made on the UI thread, then used only by the run's worker thread.
#include "engine/player/Mp3Decoder.h"

namespace sonarium {

class RunOutput {
public:
    virtual ~RunOutput() = default;
    // False when the output cannot take the file's format; the run then ends at once.
    virtual bool open(int rate, int channels) = 0;
    virtual void write(const DecodedFrame& frame) = 0;
    // The position jumped: what is buffered belongs to the old place.
    virtual void seeked() = 0;
    // The run reached its end: everything written is heard or stored before this returns.
    virtual void finish() = 0;
    // The run was stopped: silence at once, or a file that is complete as far as it got.
    virtual void abort() = 0;
};

}  // namespace sonarium
