// The demo's colours, and its contact sheet of pictures.
#pragma once

// Prints the progress colours and the names of the pictures for each region, and writes the pictures into one PNG at
// `file`. Returns false if the file cannot be written.
bool showAssets(const char* file);
