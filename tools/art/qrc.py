"""Lists the art and the help pages for the program's resource compiler."""

FOLDERS = {"sounds": "*.wav", "pictures": "*.png", "icons": "*.png", "help": "*"}


def make(resources):
    lines = ["<RCC>"]
    for folder, pattern in FOLDERS.items():
        lines.append(f'    <qresource prefix="/{folder}">')
        for path in sorted((resources / folder).glob(pattern)):
            lines.append(f'        <file alias="{path.name}">{folder}/{path.name}</file>')
        lines.append("    </qresource>")
    lines.append("</RCC>")
    (resources / "tessaro.qrc").write_text("\n".join(lines) + "\n")
