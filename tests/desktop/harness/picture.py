"""Pictures of a screen, as pixels."""


class Picture:
    """RGB pixels, 8 bits a channel."""

    def __init__(self, width, height, pixels):
        self.width = width
        self.height = height
        self.pixels = pixels

    @classmethod
    def from_ppm(cls, data):
        """From a binary PPM of 8 bits a channel, as ImageMagick and grim write it."""
        fields, at = [], 0
        while len(fields) < 4:
            end = at
            while data[end] not in b" \t\r\n":
                end += 1
            if end > at:
                fields.append(data[at:end])
            at = end + 1
        if fields[0] != b"P6" or fields[3] != b"255":
            raise ValueError(f"not an 8-bit PPM: {fields}")
        return cls(int(fields[1]), int(fields[2]), data[at:])

    def __getitem__(self, point):
        x, y = point
        at = 3 * (y * self.width + x)
        return tuple(self.pixels[at:at + 3])

    def cropped(self, x, y, width, height):
        """The part inside the given rectangle, which is cut to the picture."""
        left, top = max(0, x), max(0, y)
        right, bottom = min(self.width, x + width), min(self.height, y + height)
        rows = (self.pixels[3 * (row * self.width + left):3 * (row * self.width + right)] for row in range(top, bottom))
        return Picture(max(0, right - left), max(0, bottom - top), b"".join(rows) if right > left else b"")

    def colours(self):
        """How many pixels there are of each colour."""
        counts = {}
        for at in range(0, len(self.pixels), 3):
            colour = self.pixels[at:at + 3]
            counts[colour] = counts.get(colour, 0) + 1
        return {tuple(colour): count for colour, count in counts.items()}

    def ppm(self):
        return b"P6\n%d %d\n255\n" % (self.width, self.height) + self.pixels
