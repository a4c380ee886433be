#!/usr/bin/env python3
"""kestrelix-repository query as it is used from a shell: CSV, binds, errors, exit codes.

usage: query_command.py KESTRELIX_REPOSITORY
"""
import pathlib
import subprocess
import sys
import tempfile

CSV = 'SNAP_ID,SNAP_TIME,UCOMMENT\n1,2020-01-31 23:59:59,"a ""b"", c"\n2,2020-02-01 00:00:00,\n'

failures = 0


def check(name, condition, detail):
    global failures
    if not condition:
        failures += 1
        print(f"{name}: {detail}")


def main():
    program = sys.argv[1]
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder, "csv")
        source.mkdir()
        source.joinpath("stats$snapshot.csv").write_text(CSV)
        repository = str(pathlib.Path(folder, "file.sqlite"))
        subprocess.run([program, "import", str(source), repository], check=True, capture_output=True)

        def query(*words):
            return subprocess.run([program, "query", *words], capture_output=True)

        run = query(repository, "select snap_id, ucomment, snap_id / 4 q from stats$snapshot order by snap_id")
        check("rows are CSV with CRLF, quotes doubled, NULL empty",
              run.stdout == b'SNAP_ID,UCOMMENT,Q\r\n1,"a ""b"", c",0.25\r\n2,,0.5\r\n' and run.returncode == 0, run)

        run = query(repository, "select snap_id from stats$snapshot where snap_id = :B1", "--bind", "b1=2")
        check("a bind that looks like a number is one", run.stdout == b"SNAP_ID\r\n2\r\n", run)
        run = query(repository, "select length(:T) n, :T || 'x' t from dual", "--bind", "T:s=007")
        check("a bind marked s is a text", run.stdout == b"N,T\r\n3,007x\r\n", run)
        run = query(repository, "select nvl(:N, 9) n from dual", "--bind", "N=")
        check("an empty bind is NULL", run.stdout == b"N\r\n9\r\n", run)

        run = query(repository, "select snap_id,\n  nothing from stats$snapshot")
        text = run.stderr.decode()
        check("a wrong statement is shown with its place", run.returncode == 1 and run.stdout == b"" and
              "ORA-00904" in text and "line 2, column 3" in text and text.rstrip().endswith("^"), run)
        run = query(repository, "delete from stats$snapshot")
        check("what is no query is refused", run.returncode == 1 and run.stdout == b"", run)
        run = query(str(pathlib.Path(folder, "none.sqlite")), "select 1 from dual")
        check("a missing file is one clear line", run.returncode == 1 and run.stderr.count(b"\n") == 1 and
              b"none.sqlite: cannot be opened" in run.stderr, run)

        run = query(repository, "select snap_id from stats$snapshot", "--explain")
        check("--explain prints what SQLite is asked", b'FROM "STATS$SNAPSHOT"' in run.stdout, run)
        for words in ([], [repository], [repository, "a", "b"], [repository, "a", "--what"],
                      [repository, "select 1 from dual", "--bind"], [repository, "select 1 from dual", "--bind", "x"]):
            run = query(*words)
            check("wrong usage is one line and ends with 2", run.returncode == 2 and run.stdout == b"" and
                  run.stderr.count(b"\n") == 1 and run.stderr.startswith(b"kestrelix-repository: ") and
                  run.stderr.endswith(b"; --help tells the usage\n"), (words, run))
        run = query("--help")
        check("--help ends with 0", run.returncode == 0 and b"--bind" in run.stdout, run)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
