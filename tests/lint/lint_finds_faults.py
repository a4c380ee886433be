#!/usr/bin/env python3
"""The lints have to fail on a tree with faults: each is run on one planted fault at a time."""

import pathlib
import subprocess
import sys
import tempfile

PLANTED = [
    ("arrows.py", "src/report/a.h", '#include "sections/b.h"\n'),
    ("arrows.py", "src/report/a.h", "#include <QWidget>\n"),
    ("arrows.py", "src/shell/a.h", "#include <sqlite3.h>\n"),
    ("arrows.py", "src/platform/qt/a.h", "#include <chm_lib.h>\n"),
    ("arrows.py", "src/platform/embedded/a.h", "#include <sqlext.h>\n"),
    ("arrows.py", "src/documents/a.h", '#include "report/b.h"\n'),
    ("arrows.py", "src/elsewhere/a.h", "int a;\n"),
    ("arrows.py", "src/report/a.h", '#include "console/b.h"\n'),
    ("arrows.py", "tools/console/a.h", '#include "report/b.h"\n'),
    ("arrows.py", "tools/kestrelix-repository/a.h", '#include "shell/b.h"\n'),
    ("arrows.py", "tools/kestrelix-report/a.h", '#include "kestrelix-repository/b.h"\n'),
    ("arrows.py", "tools/kestrelix-report/a.h", "#include <sqlite3.h>\n"),
    ("arrows.py", "tools/elsewhere/a.h", "int a;\n"),
    ("locale_dependence.py", "src/report/a.h", "double a = std::stod(text);\n"),
    ("locale_dependence.py", "src/report/a.h", 'snprintf(text, 9, "%5.1f", a);\n'),
]


def main():
    here = pathlib.Path(__file__).parent
    for lint, file, text in PLANTED:
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / file
            path.parent.mkdir(parents=True)
            path.write_text(text, encoding="utf-8")
            result = subprocess.run([sys.executable, here / lint, folder], capture_output=True, text=True)
            if result.returncode != 1:
                sys.exit(f"{lint} let pass in {file}: {text}")
    print(f"{len(PLANTED)} planted faults were found")


if __name__ == "__main__":
    main()
