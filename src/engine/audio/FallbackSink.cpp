#include "engine/audio/FallbackSink.h"

namespace sonarium {

FallbackSink::~FallbackSink() { close(); }

bool FallbackSink::open(const AudioFormat& format) {
    if (lost_) {
        if (format == format_) return true;
        close();
    }
    if (!device_->open(format)) return false;
    format_ = format;
    return true;
}

void FallbackSink::fallBack() {
    device_->close();
    lost_ = true;
    fallback_.open(format_);
}

bool FallbackSink::write(const float* interleaved, int frames) {
    if (frames <= 0) return true;
    if (!lost_ && !device_->write(interleaved, frames)) fallBack();
    return !lost_ || fallback_.write(interleaved, frames);
}

bool FallbackSink::drain() {
    if (!lost_ && !device_->drain()) fallBack();
    return !lost_ || fallback_.drain();
}

void FallbackSink::reset() {
    if (lost_)
        fallback_.reset();
    else
        device_->reset();
}

void FallbackSink::close() {
    device_->close();
    lost_ = false;
    fallback_.close();
}

}  // namespace sonarium
