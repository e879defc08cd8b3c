"""Whether the places of a small source are found, and are broken as they should be."""
from mutation.places import edited, places_of

SAMPLE = """
constexpr double margin = 14;
void Shelf::show(int count, const QString &name)
{
    // a + b; call(1, 2);
    if (count > 2 && !m_isShown)
        place(count, margin);
    const QMap<int, int> sizes = made<int>(0, 1);
    m_name = name.isEmpty() ? QStringLiteral("none") : name;
    static_assert(1 + 1 == 2);
}
"""
EXPECTED = {
    "constexpr double margin = 15;",
    "{ return;",
    "if (!(count > 2) && !m_isShown)",
    "if (count > 2 && !(!m_isShown))",
    "if (!(count > 2 && !m_isShown))",
    "if (count >= 2 && !m_isShown)",
    "if (count > 3 && !m_isShown)",
    "place(margin, count);",
    "",
    "const QMap<int, int> sizes = made<int>(1, 1);",
    "const QMap<int, int> sizes = made<int>(0, 2);",
    "m_name = !(name.isEmpty()) ? QStringLiteral(\"none\") : name;",
    "m_name = name.isEmpty() ? QStringLiteral(\"none~\") : name;",
}


def self_test() -> int:
    found = set()
    for place in places_of(SAMPLE):
        line = SAMPLE.count("\n", 0, place.start)
        found.add(edited(SAMPLE, place.plain).split("\n")[line].strip())
    for missing in sorted(EXPECTED - found):
        print(f"not found: {missing}")
    for wrong in sorted(found - EXPECTED):
        print(f"should not be found: {wrong}")
    return 0 if found == EXPECTED else 1
