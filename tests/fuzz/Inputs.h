#pragma once

#include <random>
#include <string>

/// Inputs for the targets, the same ones for the same seed.

/// Bytes made of what the files are made of (separators, quotes, line ends, numbers, keys), in any order.
std::string SoupOf(std::mt19937_64& random);

/// A good input of the named target with up to three faults: bytes or lines left out, doubled, put in or exchanged.
std::string DamagedGood(const std::string& target, std::mt19937_64& random);
