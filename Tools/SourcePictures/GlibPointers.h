// SourcePictures/GlibPointers.h
// Smart pointers for GLib and cairo objects.
#pragma once

#include "Runtime/internal/Result.h"
#include <cairo.h>
#include <glib-object.h>
#include <memory>
#include <string>

namespace SourcePictures {

struct Release {
    void operator()(void* object) const { g_object_unref(object); } // all other types are GObjects
    void operator()(GBytes* bytes) const { g_bytes_unref(bytes); }
    void operator()(GError* error) const { g_error_free(error); }
    void operator()(gchar* text) const { g_free(text); }
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_t* context) const { cairo_destroy(context); }
};
template <class T> using Owned = std::unique_ptr<T, Release>;

// "is a damaged WHAT: REASON". Takes ownership of the error, which may be null.
[[nodiscard]] inline Runtime::Error damaged(const std::string& what, GError* error) {
    const Owned<GError> owned(error);
    std::string message = "is a damaged " + what;
    if (error != nullptr)
        message.append(": ").append(error->message);
    message.erase(message.find_last_not_of('\n') + 1); // some libraries append a line feed
    return {.message = message};
}

} // namespace SourcePictures
