// The loop of the benchmarks that ask about a list: one item per iteration,
// the list over again when it ends, so that the time shown is per item.
#pragma once

#include <benchmark/benchmark.h>

#include <vector>

template<typename Item, typename Ask>
void askInTurn(benchmark::State &state, const std::vector<Item> &items, Ask ask)
{
    size_t next = 0;
    for (auto _ : state) {
        ask(items[next]);
        next = next + 1 == items.size() ? 0 : next + 1;
    }
}
