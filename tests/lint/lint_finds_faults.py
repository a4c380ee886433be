#!/usr/bin/env python3
"""The lints have to fail on a tree with faults: each is run on one planted fault at a time."""

import pathlib
import subprocess
import sys
import tempfile

PLANTED = [
    ("arrows.py", "src/report/a.h", '#include "sections/b.h"\n'),
    ("arrows.py", "src/report/a.h", "#include <QWidget>\n"),
    ("arrows.py", "src/report/a.h", '#include "nowhere/b.h"\n'),
    ("arrows.py", "src/navigation/a.h", '#include "report/b.h"\n'),
    ("arrows.py", "src/documents/a.h", '#include "sections/b.h"\n'),
    ("arrows.py", "src/analysis/a.h", '#include "shell/b.h"\n'),
    ("arrows.py", "src/shell/a.h", "#include <sqlite3.h>\n"),
    ("arrows.py", "src/shell/a.h", '#include "desktop/b.h"\n'),
    ("arrows.py", "src/desktop/a.h", "#include <chm_lib.h>\n"),
    ("arrows.py", "src/desktop/a.h", '#include "repository_file/b.h"\n'),
    ("arrows.py", "src/app/a.h", '#include "demo/b.h"\n'),
    ("arrows.py", "src/app/a.h", '#include "import/b.h"\n'),
    ("arrows.py", "src/elsewhere/a.h", "int a;\n"),
    # rooms inside rooms
    ("arrows.py", "src/oracle_sql/syntax/a.h", '#include "oracle_sql/meaning/b.h"\n'),
    ("arrows.py", "src/oracle_sql/types.h", '#include "oracle_sql/syntax/b.h"\n'),
    ("arrows.py", "src/platform/controls/a.h", '#include "platform/b.h"\n'),
    ("arrows.py", "src/sections/waits/a.h", '#include "sections/memory/b.h"\n'),
    ("arrows.py", "src/sections/shared/a.h", '#include "sections/SectionList.h"\n'),
    ("arrows.py", "src/repository_file/a.h", "#include <sqlext.h>\n"),
    ("arrows.py", "src/repository_file/a.h", '#include "import/b.h"\n'),
    ("arrows.py", "src/repository_file/lowering/a.h", '#include "repository_file/writing/b.h"\n'),
    ("arrows.py", "src/repository_file/lowering/a.h", '#include "repository_file/local_database.h"\n'),
    ("arrows.py", "src/repository_file/lowering/a.h", "#include <sqlite3.h>\n"),
    ("arrows.py", "src/repository_file/writing/a.h", '#include "repository_file/lowering/b.h"\n'),
    ("arrows.py", "src/demo/a.h", '#include "import/b.h"\n'),
    ("arrows.py", "src/import/a.h", '#include "repository_file/local_database.h"\n'),
    # tools
    ("arrows.py", "tools/console/a.h", '#include "sections/b.h"\n'),
    ("arrows.py", "tools/kestrelix-report/a.h", '#include "demo/b.h"\n'),
    ("arrows.py", "tools/kestrelix-report/a.h", '#include "shell/b.h"\n'),
    ("arrows.py", "tools/kestrelix-report/a.h", '#include "import/b.h"\n'),
    ("arrows.py", "tools/kestrelix-report/a.h", '#include "kestrelix-repository/b.h"\n'),
    ("arrows.py", "tools/kestrelix-repository/a.h", '#include "sections/b.h"\n'),
    ("arrows.py", "tools/kestrelix-repository/a.h", "#include <QWidget>\n"),
    ("arrows.py", "tools/elsewhere/a.h", "int a;\n"),
    ("locale_dependence.py", "src/report/a.h", "double a = std::stod(text);\n"),
    ("locale_dependence.py", "src/report/a.h", 'snprintf(text, 9, "%5.1f", a);\n'),
    ("locale_dependence.py", "tools/console/a.h", "double a = std::stod(text);\n"),
]

# Lines in the same places that are as they should be: a lint that failed on all would find every fault.
FAULTLESS = [
    ("arrows.py", "src/report/a.h", '#include "navigation/b.h"\n#include <vector>\n'),
    ("arrows.py", "src/repository_file/lowering/a.h", '#include "repository_file/storage.h"\n'),
    ("arrows.py", "tools/kestrelix-repository/a.h", '#include "console/b.h"\n#include "demo/b.h"\n'),
    ("locale_dependence.py", "src/report/a.h", "int a = 1;\n"),
]


def run(here, lint, file, text):
    """The lint's exit code on a tree of this one file."""
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / file
        path.parent.mkdir(parents=True)
        path.write_text(text, encoding="utf-8")
        return subprocess.run([sys.executable, here / lint, folder], capture_output=True, text=True).returncode


def main():
    here = pathlib.Path(__file__).parent
    for lint, file, text in PLANTED:
        if run(here, lint, file, text) != 1:
            sys.exit(f"{lint} let pass in {file}: {text}")
    for lint, file, text in FAULTLESS:
        if run(here, lint, file, text) != 0:
            sys.exit(f"{lint} found a fault in {file}: {text}")
    print(f"{len(PLANTED)} planted faults were found, and none in {len(FAULTLESS)} faultless files")


if __name__ == "__main__":
    main()
