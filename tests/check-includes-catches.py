#!/usr/bin/env python3
"""Plants one violation of each kind in a copy of the tree's shape and expects each to be found."""
import pathlib
import subprocess
import sys
import tempfile

SCRIPT = pathlib.Path(sys.argv[1]) / "scripts" / "check-includes.py"
GOOD = {
    "platform/Clock.h": "",
    "platform/linux/LinuxServices.h": '#include "platform/Clock.h"\n',
    "preferences/Store.h": '#include "platform/Clock.h"\n',
    "preferences/PreferencesRetrieval.h": "",
    "channel/Channel.h": '#include "preferences/Store.h"\n',
    "consolidator/Records.h": '#include "channel/Channel.h"\n',
    "process_control/Actions.h": '#include "consolidator/Records.h"\n#include "preferences/Store.h"\n',
    "windows/Frame.h": '#include "consolidator/Records.h"\n',
    "main_window/Window.h": '#include "windows/Frame.h"\n',
    "main_window/Window.cpp": '#include "main_window/Window.h"\n#include "main_window/Row.h"\n',
    "main_window/Row.h": "",
    "animated_view/View.h": '#include "windows/Frame.h"\n',
    "app/main.cpp": '#include "platform/linux/LinuxServices.h"\n#include "consolidator/Records.h"\n',
    "helper/Channel.cpp": '#include "helper/Request.h"\n',
    "helper/Request.h": "",
}
BAD = {
    "consolidator/Acts.h": '#include "process_control/Actions.h"\n',
    "channel/Up.h": '#include "consolidator/Records.h"\n',
    "platform/Up.h": '#include "preferences/Store.h"\n',
    "platform/linux/Sideways.h": '#include "consolidator/Records.h"\n',
    "preferences/Names.cpp": '#include "platform/linux/LinuxServices.h"\n',
    "consolidator/Upwards.cpp": '  #  include "app/main.cpp"\n',
    "windows/Upwards.h": '#include "main_window/Window.h"\n',
    "animated_view/Sideways.cpp": '#include "main_window/Window.h"\n',
    # By way of another, and from a source back to a header.
    "platform/linux/Loop": {"platform/linux/Loop.cpp": '#include "platform/linux/Other.h"\n',
                            "platform/linux/Other.h": '#include "platform/linux/Third.h"\n',
                            "platform/linux/Third.h": '#include "platform/linux/Loop.h"\n',
                            "platform/linux/Loop.h": ""},
    "consolidator/Qt.cpp": "#include <QString>\n",
    "app/other.cpp": '#include "platform/linux/LinuxServices.h"\n',
    "helper/Reaches.cpp": '#include "platform/Clock.h"\n',
    "consolidator/Reaches.cpp": '#include "helper/Request.h"\n',
    "consolidator/Relative.cpp": '#include "Records.h"\n',
    "consolidator/Prints.cpp": '  std::puts("odd");\n',
    "app/Prints.cpp": '  std::fprintf(stderr, "odd");\n',
    "consolidator/Unchecked.cpp": '#include "preferences/PreferencesRetrieval.h"\n',
}


def run(files):
    with tempfile.TemporaryDirectory() as root:
        for name, text in files.items():
            path = pathlib.Path(root, "src", name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        return subprocess.run([sys.executable, SCRIPT, root], capture_output=True, text=True)


clean = run(GOOD)
assert clean.returncode == 0, clean.stdout
for name, text in BAD.items():
    result = run({**GOOD, **(text if isinstance(text, dict) else {name: text})})
    assert result.returncode == 1 and name in result.stdout, f"{name} was not found: {result.stdout}"
print(f"{len(BAD)} kinds of violation found")
