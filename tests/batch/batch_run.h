#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "support/zolv_test.h"

namespace zolv {

/// What a run of zolv-batch left: its exit status and what it printed.
struct BatchRun {
    int status = -1;
    std::string output;
    std::string errors;

    /// The lines of the output, without the messages on what the folder lacks.
    std::vector<std::string> Answers() const;
};

/// Runs the built program in the current directory.
/// @param input      on its standard input
/// @param arguments  as a shell reads them; the output can be sent elsewhere
BatchRun RunBatch(std::string_view input, const std::string& arguments = "");

/// The lines of a text that ends in a line end.
std::vector<std::string> LinesOf(const std::string& text);

}  // namespace zolv
