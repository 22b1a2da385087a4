// The plug-in's only function.
#include "Pictures/internal/Decoders.h"

const Pictures::Decoders* lumoraPictures() noexcept {
    return &Pictures::linkedDecoders();
}
