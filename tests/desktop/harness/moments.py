"""A moment for the tests to which any would do, another one, and the line at each."""

NOON, LINE = "2025-11-15 12:00:00", "🌫️ 23 Brumaire · Tridi · 5:00"
LATER, LATER_LINE = "2025-11-15 14:24:00", "🌫️ 23 Brumaire · Tridi · 6:00"

TWO_TICKS = 2 * 0.864  # seconds
