# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# What .github holds can be read: each file is YAML, each step that a workflow names is one of .ci/run, actions stand with their
# commit, permissions are the least, and forms for reports ask for what is needed.
. "$(dirname "$0")/common.sh" "$@"
cd "$root"

steps=" $(sed -nE 's/^step_([a-z_]+)\(\).*/\1/p' .ci/run | tr '\n' ' ')"
said="$(python3 - "$steps" 2>&1 <<'PYTHON'
import pathlib, re, sys

import yaml

known, wrong, looked = sys.argv[1].split(), [], 0


def check(holds, sentence):
    global looked
    looked += 1
    wrong.extend([] if holds else [sentence])


for path in sorted(pathlib.Path(".github").rglob("*.yml")):
    try:
        read = yaml.safe_load(path.read_text())
    except yaml.YAMLError as error:
        check(False, f"{path}: {error}")
        continue
    if path.parent.name == "workflows":
        check(read.get("permissions") == {"contents": "read"}, f"{path}: permissions are not read alone")
        named = set()
        for name, job in read["jobs"].items():
            check("permissions" not in job, f"{path}: {name} has permissions of its own")
            check("timeout-minutes" in job, f"{path}: {name} may run for ever")
            for step in job["steps"]:
                if "uses" in step:
                    check(re.fullmatch(r"[\w/-]+@[0-9a-f]{40}", step["uses"]), f"{path}: {step['uses']} names no commit")
                    check("checkout" not in step["uses"] or step["with"]["persist-credentials"] is False, f"{path}: {name} keeps credentials")
                for words in re.findall(r"\.ci/run(.*)", step.get("run", "")):
                    # Each value of the matrix that the command takes.
                    of_matrix = re.findall(r"\$\{\{ *matrix\.(\w+) *\}\}", words)
                    named |= {each for key in of_matrix for each in job["strategy"]["matrix"][key]}
                    named |= set(re.sub(r"\$\{\{.*?\}\}", "", words).split())
        for step in sorted(named):
            check(step in known, f"{path}: .ci/run has no step {step}")
        default = re.search(r"^default_steps=\((.*)\)", pathlib.Path(".ci/run").read_text(), re.M)[1].split()
        check(set(default) <= named, f"{path}: without {set(default) - named}, which .ci/run does by itself")
    elif path.name != "config.yml":
        check({"name", "description", "body"} <= set(read), f"{path}: a form has name, description and body")
        ids = [part["id"] for part in read["body"] if part["type"] != "markdown"]
        check(len(set(ids)) == len(ids), f"{path}: two parts have one id")
        needed = {"fault.yml": {"version", "done", "expected", "seen"}, "number.yml": {"version", "document", "figure", "source"}}
        for part in read["body"]:
            if part.get("id") in needed[path.name]:
                check(part["validations"]["required"], f"{path}: {part['id']} may be left out")
        check(needed[path.name] <= set(ids), f"{path}: asks not for {needed[path.name] - set(ids)}")
        check(any("real patient" in str(part) and part["type"] == "markdown" for part in read["body"]), f"{path}: warns of no real patient")
        # Programs and options that a form names are there.
        for name in re.findall(r"`nascor-cli ([a-z-]+)", path.read_text()):
            if not name.startswith("-"):
                check(f"`{name}" in pathlib.Path("docs/command-line.md").read_text(), f"{path}: there is no nascor-cli {name}")
print("\n".join([str(looked), *wrong]))
PYTHON
)" || wrong "$said"
checks=$((checks + $(head -n 1 <<<"$said")))
while IFS= read -r sentence; do [[ -z "$sentence" ]] || wrong "$sentence"; done < <(tail -n +2 <<<"$said")
conclude
