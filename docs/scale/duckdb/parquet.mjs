// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// parquet.mjs write FILE HEADER: the rows on standard input as a Parquet file; HEADER is the first line of `nascor-cli rows`.
// parquet.mjs read FILE: such a file as `nascor-cli rows` prints it, on standard output.
import { DuckDBInstance } from '@duckdb/node-api';

const types = {
  exam: 'INTEGER', fetus: 'INTEGER', days_to_edd: 'INTEGER', exam_date: 'DATE', edd: 'DATE',
  file: 'VARCHAR', standard: 'VARCHAR', reference_id: 'VARCHAR', note: 'VARCHAR', warning: 'VARCHAR', error: 'VARCHAR',
};
const text = (value) => `'${value.replaceAll("'", "''")}'`;

const [task, file, header] = process.argv.slice(2);
const database = await (await DuckDBInstance.create()).connect();
if (task === 'write') {
  const columns = header.split(',').map((name) => `${name}: '${types[name] ?? 'DOUBLE'}'`);
  await database.run(`copy (from read_csv('/dev/stdin', auto_detect = false, header = false, delim = ',', quote = '"',
    escape = '"', new_line = '\\n', columns = {${columns}})) to ${text(file)} (format parquet, compression zstd)`);
} else {
  // DuckDB writes 38.0 where `rows` writes 38.
  const described = await database.runAndReadAll(`select column_name, column_type from (describe from ${text(file)})`);
  const columns = described.getRows().map(([name, type]) =>
    type === 'DOUBLE' ? `regexp_replace(${name}::varchar, '\\.0$', '') as ${name}` : name);
  await database.run(`copy (select ${columns} from read_parquet(${text(file)})) to '/dev/stdout' (format csv, header)`);
}
