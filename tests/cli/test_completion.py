"""What the shells complete after `fernwick` is what its help names, for each verb and in each shell."""
import os
import pty
import re
import subprocess
import unittest

from support import ROOT, Home

COMPLETION = ROOT / "Apps/fernwick/completion"

BASH = r"""
. "$COMPLETION/fernwick.bash"
while IFS= read -r line; do
  read -r -a COMP_WORDS <<<"$line"
  [[ $line == *' ' ]] && COMP_WORDS+=("")
  COMP_CWORD=$((${#COMP_WORDS[@]} - 1)) COMPREPLY=()
  _fernwick
  echo "$line:" "${COMPREPLY[@]}"
done
"""
FISH = r"""
source $COMPLETION/fernwick.fish
while read -l line
    echo "$line:" (complete -C $line | string replace -r '\t.*' '')
end
"""
# The line editor completes each line as at a terminal, and what would be offered is written down.
ZSH = r"""
PS1= fpath=($HOME/functions $fpath)
autoload -Uz compinit && compinit -u -D
compadd() {
  local -a offered
  [[ " $* " == *" -"[OAD]" "* ]] || { builtin compadd -O offered "$@"; collected+=($offered) }
  builtin compadd "$@"
}
complete_all() {
  local line
  for line in ${(f)"$(<$HOME/lines)"}; do
    collected=()
    BUFFER=$line CURSOR=$#line
    zle list-choices
    print -r -- "$line:" $collected >>$HOME/offered
  done
  exit
}
zle -N zle-line-init complete_all
"""


def bash(home, lines):
    return home.run("bash", "-c", BASH, input="\n".join(lines) + "\n", stdin=None, check=True).stdout


def fish(home, lines):
    return home.run("fish", "--no-config", "-c", FISH, input="\n".join(lines) + "\n", stdin=None, check=True).stdout


def zsh(home, lines):
    (home.folder / "functions").mkdir()
    os.symlink(COMPLETION / "fernwick.zsh", home.folder / "functions/_fernwick")
    (home.folder / ".zshrc").write_text(ZSH)
    (home.folder / "lines").write_text("\n".join(lines))
    outer, inner = pty.openpty()
    with subprocess.Popen(["zsh", "-i"], cwd=home.work, env=home.env | {"TERM": "dumb", "ZDOTDIR": str(home.folder)},
                          stdin=inner, stdout=inner, stderr=inner, start_new_session=True) as shell:
        os.close(inner)
        try:
            while os.read(outer, 65536):
                pass
        except OSError: # how a terminal without programs ends
            pass
        os.close(outer)
        shell.wait(60)
    return (home.folder / "offered").read_text()


class Completion(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.home = Home()
        self.home.__enter__()
        self.addCleanup(self.home.__exit__)
        self.home.env["COMPLETION"] = str(COMPLETION)

    def section(self, heading, *arguments):
        text = self.home.fernwick(*arguments, check=True).stdout
        return re.search(rf"^{heading}:\n((?:  .*\n)+)", text, re.M)[1]

    def names(self, heading, *arguments):
        return re.findall(r"^  (\S+)", self.section(heading, *arguments), re.M)

    def long_options(self, *arguments):
        return {name for entry in self.names("Options", *arguments) for name in entry.split(",") if name.startswith("--")}

    def expected(self):
        """Lines of a shell, and what it offers at their end."""
        verbs = self.names("Commands", "--help")
        self.assertGreater(len(verbs), 15)
        lines = {"fernwick ": set(verbs), "fernwick help ": {"answers", *verbs}, "fernwick --": self.long_options("--help")}
        for verb in verbs:
            options = self.section("Options", "help", verb)
            lines[f"fernwick {verb} --"] = self.long_options("help", verb)
            if formats := re.search(r"--format FORMAT .*: (.*)", options):
                lines[f"fernwick {verb} --format "] = set(re.split(", | or ", formats[1]))
        lines["fernwick settings get Handheld"] = {
            name for name in self.names("Settings", "help", "settings") if name.startswith("Handheld")}
        lines["fernwick build --device "] = set(re.findall(r"^\S+", self.home.fernwick("targets").stdout, re.M))
        lines["fernwick devices "] = {"list", "add", "remove", "set"}
        lines["fernwick completion "] = {"bash", "zsh", "fish"}
        lines["fernwick --color "] = lines["fernwick build --color "] = {"auto", "always", "never"}
        lines["fernwick --format json -q "] = set(verbs)
        return lines

    def check(self, shell):
        expected = self.expected()
        offered = {}
        for row in shell(self.home, list(expected)).splitlines():
            line, words = row.split(":", 1)
            offered[line] = {word for word in words.split() if not re.fullmatch("-[a-z]", word)}
        # only some shells complete help as a separate topic
        for words in (expected, offered):
            words["fernwick help "].discard("help")
        self.assertEqual(offered.keys(), expected.keys())
        wrong = {line: {"missing": sorted(words - offered[line]), "too many": sorted(offered[line] - words)}
                 for line, words in expected.items() if words != offered[line]}
        self.assertEqual(wrong, {})

    def test_the_command_prints_the_installed_scripts(self):
        for shell in ("bash", "zsh", "fish"):
            printed = self.home.fernwick("completion", shell, check=True).stdout
            self.assertEqual(printed, (COMPLETION / f"fernwick.{shell}").read_text(encoding="utf-8"))

    def test_bash(self):
        self.check(bash)

    def test_zsh(self):
        self.check(zsh)

    def test_fish(self):
        self.check(fish)


if __name__ == "__main__":
    unittest.main()
