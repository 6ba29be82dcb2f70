#pragma once

// The exit codes every subcommand keeps to, so that a build script can tell them apart.
namespace ToolExit {
constexpr int Ok = 0;
// The command ran and found something: problems in a rulebase, differences, unread files.
constexpr int Findings = 1;
// Bad arguments, a file that can't be read or written, input the command can't work on.
constexpr int Failure = 2;
} // namespace ToolExit
