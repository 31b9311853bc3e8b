# SPDX-License-Identifier: GPL-3.0-or-later
# Makes a table of the results that a script printed: element 2 of a result's labels is its
# caption, 0 its cooling and 1 its heating figure. What else the transcript holds is passed over.

# The text behind `= "`, without its closing quote.
function printed() {
    text = substr($0, index($0, " = \"") + 4)
    return substr(text, 1, length(text) - 1)
}

/^frm[A-Z]+Design#[0-9]+\.INProjectNameText = / { print "\n" printed() }
/^frm[A-Z]+Design#[0-9]+\.CATopLabel\(0\) = / { cooling = printed() }
/^frm[A-Z]+Design#[0-9]+\.CATopLabel\(1\) = / {
    printf "\n  %-38s %12s %12s\n", "", cooling, printed()
    next
}
/^frm[A-Z]+Design#[0-9]+\.CAPercentHybridLabel\(0\) = / {
    printf "\n  %-38s %12s\n", "Load taken by the cooling tower:", printed()
    next
}
# The tower's figures have no mode: 1 is the caption, 0 the figure.
/^frm[A-Z]+Design#[0-9]+\.CA(Condenser|CoolingTower)[A-Za-z]+\(1\) = / { caption = printed(); next }
/^frm[A-Z]+Design#[0-9]+\.CA(Condenser|CoolingTower)[A-Za-z]+\(0\) = / {
    printf "  %-38s %12s\n", caption, printed()
    next
}
/^frm[A-Z]+Design#[0-9]+\.CA[A-Za-z]+\([012]\) = / {
    element = substr($1, index($1, "(") + 1, 1)
    figure[element] = printed()
    if (element == 1) printf "  %-38s %12s %12s\n", figure[2], figure[0], figure[1]
}
/^(message|question) / { print "  " $0 }
