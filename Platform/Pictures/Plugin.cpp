// The only function that the plug-in exports.
#include "Pictures/internal/Decoders.h"

const Pictures::Decoders* lumoraPictures() noexcept {
    return &Pictures::linkedDecoders();
}
