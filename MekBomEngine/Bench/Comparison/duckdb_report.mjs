// What does the report cost in DuckDB, in memory and on one thread, from the query to the whole text?
//   node duckdb_report.mjs --modules FOLDER --data parts.csv [--runs N] [--text report.txt]
// Measured as its fastest way: one query whose aggregates join the lines of each group, so that few rows are fetched.
// On one thread rows keep their order on the way into a group, so they are sorted by length before, and only the groups
// by mark. Window functions and sorting all rows by all keys take longer; casts to decimals are faster than printf.
import { dataPath, measure, requirePackage } from './comparison_run.mjs';

const { DuckDBInstance } = requirePackage('@duckdb/node-api');

const decimals = (number, places) => `CAST(${number} AS DECIMAL(18, ${places}))`;

const line = `concat_ws('\t', handle, num, mark, material, profile, ${decimals('length', 1)}, ${decimals('weight', 2)},
    ${decimals('paint', 2)}, quantity, phase, class, coating, ${decimals('thick', 1)}, ${decimals('width', 1)},
    ${decimals('length * quantity / 1000', 1)})`;

const marks = `
    SELECT material, sum(weight) AS weight,
           concat(mark, '\n', string_agg(line, '\n'), '\n', ${decimals('sum(weight)', 2)}, '\n') AS block
    FROM (SELECT material, mark, weight, ${line} AS line FROM parts ORDER BY length DESC)
    GROUP BY material, mark
    ORDER BY material, CAST(substr(mark, 2) AS INTEGER)`;

const materials = `
    SELECT concat(material, '\n', string_agg(block, ''), ${decimals('sum(weight)', 2)}, '\n'), sum(weight)
    FROM (${marks}) GROUP BY material ORDER BY material`;

const load = `CREATE TABLE parts AS SELECT * FROM read_csv('${dataPath}', header = true, columns = {
    handle: 'VARCHAR', num: 'VARCHAR', mark: 'VARCHAR', material: 'VARCHAR', profile: 'VARCHAR', length: 'DOUBLE',
    weight: 'DOUBLE', paint: 'DOUBLE', quantity: 'INTEGER', phase: 'VARCHAR', class: 'VARCHAR', coating: 'VARCHAR',
    thick: 'DOUBLE', width: 'DOUBLE'})`;

const instance = await DuckDBInstance.create(':memory:', { threads: '1' });
const connection = await instance.connect();
await connection.run(load);
const [[count], [version]] = (await connection.runAndReadAll('SELECT count(*), version() FROM parts')).getColumns();

await measure(`DuckDB ${version.slice(1)}`, count, async () => {
    const [texts, weights] = (await connection.runAndReadAll(materials)).getColumns();
    const total = weights.reduce((sum, weight) => sum + weight, 0);
    return `${texts.join('')}${total.toFixed(2)}\n`;
});
