// The floor of every cost: what the XML library alone needs for the same bytes.
#ifndef XTTML_BENCH_BARE_PARSE_H
#define XTTML_BENCH_BARE_PARSE_H

#include <string>

/// Parses a document in memory into a DOM, with the settings the library uses, and releases it.
void BareParse(const std::string& text);

#endif
