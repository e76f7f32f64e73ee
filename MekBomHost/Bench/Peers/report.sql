-- The large report by the sqlite3 shell: parts.csv in the current folder to report.txt.
--   sqlite3 :memory: <report.sql
-- What is fastest here: a table in memory, one sorted query whose sums are rows of their own, one text per line. The
-- marks are a letter and a number, so that their natural order is that of the number.
PRAGMA temp_store = MEMORY;
PRAGMA journal_mode = OFF;
CREATE TABLE parts(Handle TEXT, Num TEXT, MNum TEXT, Material TEXT, Name TEXT, Length REAL, Weight REAL, Paint REAL,
    Quantity INTEGER, Phase INTEGER, Class INTEGER, Coating TEXT, Thick REAL, Width REAL);
.mode csv
.import --skip 1 parts.csv parts
.mode list
.headers off
.output report.txt
SELECT printf('%-8s  %-6s  %-6s  %-5s  %-6s  %8s  %12s  %6s  %8s  %5s  %5s  %-7s  %5s  %5s  %8s', 'Material', 'MNum',
    'Handle', 'Num', 'Name', 'Length', 'Weight', 'Paint', 'Quantity', 'Phase', 'Class', 'Coating', 'Thick', 'Width',
    'Total');
SELECT CASE kind
    WHEN 0 THEN printf('%-8s  %-6s  %-6s  %-5s  %-6s  %8.1f  %12.2f  %6.2f  %8d  %5d  %5d  %-7s  %5g  %5g  %8.1f',
        Material, MNum, Handle, Num, Name, Length, Weight, Paint, Quantity, Phase, Class, Coating, Thick, Width,
        Length * Quantity / 1000)
    ELSE printf('%61.2f', Weight) END
FROM (
    SELECT 0 AS kind, Material, CAST(substr(MNum, 2) AS INTEGER) AS mark, MNum, Handle, Num, Name, Length, Weight,
        Paint, Quantity, Phase, Class, Coating, Thick, Width FROM parts
    UNION ALL
    SELECT 1, Material, CAST(substr(MNum, 2) AS INTEGER), MNum, '', '', '', 0, sum(Weight), 0, 0, 0, 0, '', 0, 0
        FROM parts GROUP BY Material, MNum
    UNION ALL
    SELECT 2, Material, 1e9, '', '', '', '', 0, sum(Weight), 0, 0, 0, 0, '', 0, 0 FROM parts GROUP BY Material
    UNION ALL
    SELECT 3, '~', 1e9, '', '', '', '', 0, sum(Weight), 0, 0, 0, 0, '', 0, 0 FROM parts
)
ORDER BY Material, mark, kind, Length DESC;
