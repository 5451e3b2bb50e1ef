#pragma once

#include <benchmark/benchmark.h>

#include <functional>

// Benchmarks in pairs: ours beside a peer. Both sides run in one process, their repetitions mixed at random, and at the
// end the ratio of their medians (ours / peer) is printed beside the bound it should keep.

using ÖlçümYüzü = std::function<void(benchmark::State&)>;

void ÇiftEkle(const char* ad, double sınır, ÖlçümYüzü bizimki, ÖlçümYüzü karşılık);

// Runs what was added (Google Benchmark's own arguments apply) and prints the ratios. The exit code: 0 when every ratio
// kept its bound.
int ÇiftleriÖlç(int argc, char** argv);
