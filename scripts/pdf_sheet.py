"""A very small PDF writer: one sheet of lines, boxes, arcs and text, the same bytes every time.

Coordinates are points (1/72 inch) from the sheet's top left corner, y downward, as a person
measures on paper.
"""


def _n(value):
    text = f"{value:.3f}".rstrip("0").rstrip(".")
    return "0" if text in ("", "-0") else text


class Sheet:
    def __init__(self, width, height, title):
        self.width, self.height, self.title = width, height, title
        self.ops = []

    def y(self, value):
        return self.height - value

    def pen(self, width, grey=0.0):
        self.ops.append(f"{_n(width)} w {_n(grey)} G")

    def line(self, x1, y1, x2, y2):
        self.ops.append(f"{_n(x1)} {_n(self.y(y1))} m {_n(x2)} {_n(self.y(y2))} l S")

    def box(self, x, y, width, height, fill=None):
        paint = "S"
        if fill is not None:
            self.ops.append(f"{_n(fill)} g")
            paint = "B"
        self.ops.append(f"{_n(x)} {_n(self.y(y + height))} {_n(width)} {_n(height)} re {paint}")

    def fill(self, x, y, width, height, grey):
        self.ops.append(f"{_n(grey)} g {_n(x)} {_n(self.y(y + height))} "
                        f"{_n(width)} {_n(height)} re f")

    def quarter(self, cx, cy, x1, y1, x2, y2):
        """A quarter circle round (cx, cy) from (x1, y1) to (x2, y2)."""
        k = 0.5522847498
        a = (x1 + k * (x2 - cx), y1 + k * (y2 - cy))
        b = (x2 + k * (x1 - cx), y2 + k * (y1 - cy))
        self.ops.append(
            f"{_n(x1)} {_n(self.y(y1))} m {_n(a[0])} {_n(self.y(a[1]))} "
            f"{_n(b[0])} {_n(self.y(b[1]))} {_n(x2)} {_n(self.y(y2))} c S")

    def text(self, x, y, size, words, bold=False, centre=False, upright=True):
        font = "F2" if bold else "F1"
        if centre:
            x, y = self._centred(x, y, size, words, upright)
        safe = words.replace("\\", r"\\").replace("(", r"\(").replace(")", r"\)")
        turn = "1 0 0 1" if upright else "0 1 -1 0"
        self.ops.append(f"BT 0 g /{font} {_n(size)} Tf {turn} {_n(x)} {_n(self.y(y))} Tm "
                        f"({safe}) Tj ET")

    @staticmethod
    def _centred(x, y, size, words, upright):
        half = sum(WIDTHS.get(c, 0.556) for c in words) * size / 2
        return (x - half, y) if upright else (x, y + half)

    def write(self, path):
        stream = ("\n".join(["1 J 1 j"] + self.ops) + "\n").encode("latin-1")
        objects = [
            b"<< /Type /Catalog /Pages 2 0 R >>",
            b"<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
            (f"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 {_n(self.width)} {_n(self.height)}] "
             "/Resources << /Font << /F1 5 0 R /F2 6 0 R >> >> /Contents 4 0 R >>").encode(),
            b"<< /Length %d >>\nstream\n" % len(stream) + stream + b"endstream",
            b"<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica "
            b"/Encoding /WinAnsiEncoding >>",
            b"<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica-Bold "
            b"/Encoding /WinAnsiEncoding >>",
            b"<< /Title (" + self.title.encode("latin-1") + b") >>",
        ]
        out = bytearray(b"%PDF-1.4\n%\xe2\xe3\xcf\xd3\n")
        places = []
        for number, body in enumerate(objects, 1):
            places.append(len(out))
            out += b"%d 0 obj\n" % number + body + b"\nendobj\n"
        table = len(out)
        out += b"xref\n0 %d\n0000000000 65535 f \n" % (len(objects) + 1)
        for place in places:
            out += b"%010d 00000 n \n" % place
        out += b"trailer\n<< /Size %d /Root 1 0 R /Info 7 0 R >>\nstartxref\n%d\n%%%%EOF\n" % (
            len(objects) + 1, table)
        path.write_bytes(out)


# Widths of Helvetica in thousandths of the size, for centring; anything else counts as a digit.
WIDTHS = {c: w / 1000 for w, letters in (
    (222, "ijl"), (278, " .,:;/IfT|t!"), (333, "-r()"), (191, "'"), (355, '"'),
    (500, "ckvxyzsJ"), (556, "abdeghnopqu0123456789L"), (584, "=+"), (611, "FZ"),
    (667, "ABEKPSVXY&"), (722, "CDHNRUw"), (778, "GOQ"), (833, "mM"), (944, "W"),
) for c in letters}
WIDTHS["T"] = 0.611
