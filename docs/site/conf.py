"""How Sphinx makes the site of the pages that guides.py and reference.py lay out."""

import pathlib
import re
import sys

here = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(here))

project = "QELPROEngine"
author = "QELPROEngine"
release = re.search(
    r"VERSION\s+([0-9.]+)", (here / "../../CMakeLists.txt").read_text().split("project(", 1)[1]
)[1]
html_title = f"QELPROEngine {release}"

extensions = ["myst_parser", "sphinx.ext.graphviz", "member_links"]
myst_heading_anchors = 4  # the anchors that a repository's own pages have
graphviz_output_format = "svg"
exclude_patterns = ["examples"]
highlight_language = "none"
primary_domain = "cpp"
smartquotes = False  # "FillTime" is quoted as it stands in a file
add_function_parentheses = False
toc_object_entries_show_parents = "hide"

html_theme = "furo"
html_static_path = [str(here / "static")]
html_css_files = ["site.css"]
html_show_sphinx = False
html_show_copyright = False
html_copy_source = False
html_domain_indices = False
pygments_style = "default"
pygments_dark_style = "native"
html_theme_options = {
    "light_css_variables": {
        "color-brand-primary": "#2b5c8f",
        "color-brand-content": "#2b5c8f",
        "color-api-name": "#1d4268",
        "color-api-pre-name": "#1d4268",
    },
    # All of the theme's dark colours: its own are missing where a reader's system, and no button,
    # asks for them.
    "dark_css_variables": {
        "color-brand-primary": "#8ab8e8",
        "color-brand-content": "#8ab8e8",
        "color-api-name": "#a9cdf2",
        "color-api-pre-name": "#a9cdf2",
        "color-api-keyword": "var(--color-foreground-secondary)",
        "color-problematic": "#ee5151",
        "color-foreground-primary": "#ffffffcc",
        "color-foreground-secondary": "#9ca0a5",
        "color-foreground-muted": "#81868d",
        "color-foreground-border": "#666666",
        "color-background-primary": "#131416",
        "color-background-secondary": "#1a1c1e",
        "color-background-hover": "#1e2124ff",
        "color-background-hover--transparent": "#1e212400",
        "color-background-border": "#303335",
        "color-background-item": "#444",
        "color-highlighted-background": "#083563",
        "color-highlight-on-target": "#333300",
        "color-card-border": "var(--color-background-secondary)",
        "color-card-background": "#18181a",
        "color-card-marginals-background": "var(--color-background-hover)",
    },
}
