#!/usr/bin/env python3
"""Writes a table of 1,015 made-up feature flags, 673 of them on by default, for tests. The same file every time.

usage: make_up_features.py OUT.tsv
"""

import random
import sys

from gen_features import COLUMNS
from tables import write  # gen_features tells where

# How many flags of a maturity are on and off by default, as in a platform that is years old.
COUNTS = {"Unclassified": (5, 5), "Development": (81, 286), "Trial": (2, 5), "Released": (227, 28),
          "Settled": (358, 18)}


def made_up_table(seed=10):
    chance = random.Random(seed)
    kinds = [(maturity, default) for maturity, counts in COUNTS.items()
             for default, count in zip(("on", "off"), counts) for _ in range(count)]
    chance.shuffle(kinds)
    # Both ends of the range, and the rest anywhere: not sorted.
    ids = [0xFFFFFFFF, 1] + chance.sample(range(2, 0xFFFFFFFF), len(kinds) - 2)
    words = ("Fast", "Tooltip", "Sankey", "PDF", "Ask", "SKU", "Kiosk")
    out = ["\t".join(COLUMNS) + "\n"]
    for i, (maturity, default) in enumerate(kinds):
        name = "%s%s%04d%s" % (chance.choice(words), chance.choice(words), i, chance.choice(("", "_Enabled", "_V2")))
        date = chance.choice(("", "3000-01-01", "%d-%d-%d" % (2018 + i % 9, 1 + i % 12, 1 + i % 28)))
        out.append("\t".join((str(ids[i]), maturity, default, "Équipe %d" % (i % 37), "Team%d" % (i % 37),
                              chance.choice(("", "%06d" % i)), date, chance.choice(("", "none", "restart")), name,
                              'What flag "%d" does \\ 語 😀, %%1 <tag>' % i)) + "\n")
    return "".join(out)


if __name__ == "__main__":
    write(sys.argv[1], made_up_table())
