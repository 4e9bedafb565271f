"""What happens by chance in a test, from a seed that is printed and can be given back by TAMBRELLE_SEED."""

import os
import random


def chance():
    seed = int(os.environ.get("TAMBRELLE_SEED") or random.SystemRandom().randrange(1 << 32))
    print(f"TAMBRELLE_SEED={seed}", flush=True)
    return random.Random(seed)
