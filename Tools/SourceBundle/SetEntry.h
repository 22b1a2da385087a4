// SourceBundle/SetEntry.h
// One entry of a set's Contents.json, with the traits that its variant is for.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "SourceBundle/Json.h"
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace SourceBundle {

struct SetEntry {
    const Json* json;
    std::size_t number; // in its list, counted from 1
    AssetCatalog::Fit fit{};
    std::string language{}; // "pt-BR"; empty: for all languages
    // What the variant is for besides `fit` and `language`. Only variants of one Device are used, see isPreferred().
    struct Device {
        std::vector<std::string> conditions{}; // that Lumora never meets, each as `subtype "retina4"`; sorted
        std::string idiom = "universal";
        std::size_t rank = 0;         // of the idiom; 0 is used first
        std::int64_t screenWidth = 0; // that the conditions require, or 0
        friend bool operator==(const Device&, const Device&) = default;
        // `idiom "ipad", subtype "retina4"`
        [[nodiscard]] std::string text() const;
    } device{};

    // Whether the entry has a file or a colour. Editors of catalogs also write entries that nobody has filled.
    [[nodiscard]] bool isFilled() const;
    // `entry 3 ("picture.png")`, or `entry 3` if it has no file.
    [[nodiscard]] std::string label() const;
};

// Whether `one` is preferred to `other`: the one without conditions (others are a last resort), or else with the lower
// rank, or else with fewer conditions, or else with the wider screen.
[[nodiscard]] bool isPreferred(const SetEntry::Device& one, const SetEntry::Device& other);

// Precondition: `json` is an object that outlives the result.
[[nodiscard]] SetEntry readEntry(const Json& json, std::size_t number);

} // namespace SourceBundle
