#ifndef LAB_SEEDS_H
#define LAB_SEEDS_H

#include "Target.h"

#include <string>

/// What a target is begun with.
struct Seed
{
    std::string name;
    QByteArray bytes;
};

/// The seeds of a target, read from the plant at `plantDirectory`. "*" stands for all files of the plant that
/// a configuration has, each behind the byte that names it.
std::vector<Seed> seedsOf(const Target& target, const QString& plantDirectory);

#endif
