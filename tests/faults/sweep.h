// How many calls the tests strike: a few of each kind in the suite, or with FAULT_SWEEP=all every one.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/faults/faulty_phone.h"

namespace phone {

/// Whether the environment asks for the long sweep, which takes an hour instead of a minute.
bool sweepsAll();

/// Which of so many calls to strike, counted from 1: all, or `few` of them, spread over all.
std::vector<std::uint32_t> chosenOf(std::uint32_t calls, std::uint32_t few);

/// What a failure has to say: the verb, the fault, and what the run said.
std::string traceOf(const FaultyPhone& phone, const Fault& fault, const FaultyRun& run);

}  // namespace phone
