// What the JavaScript programs of the comparison have in common: their arguments, where they find their packages, and
// how they tell their times.
//   node duckdb_report.mjs --modules FOLDER --data parts.csv [--threads N] [--runs N] [--text report.txt]
// FOLDER holds the node_modules with the database.
import { createRequire } from 'node:module';
import { parseArgs } from 'node:util';
import { writeFileSync } from 'node:fs';

const { values: options } = parseArgs({
    options: {
        modules: { type: 'string' },
        data: { type: 'string' },
        threads: { type: 'string', default: '1' },
        runs: { type: 'string', default: '5' },
        text: { type: 'string' },
    },
});

export const requirePackage = createRequire(`${options.modules}/`);
export const dataPath = options.data;
export const threads = options.threads;

// Makes the report --runs times and prints the times of all runs but the first.
export async function measure(program, numRows, makeReport) {
    const milliseconds = [];
    let text = '';
    for (let run = 0; run < Number(options.runs); ++run) {
        const start = performance.now();
        text = await makeReport();
        milliseconds.push(performance.now() - start);
    }
    if (options.text)
        writeFileSync(options.text, text);
    const name = threads === '1' ? program : `${program}, ${threads} threads`;
    console.log(JSON.stringify({ program: name, rows: Number(numRows), milliseconds: milliseconds.slice(1) }));
}
