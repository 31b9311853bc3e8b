// SPDX-License-Identifier: GPL-3.0-or-later
// A click on a column's head, or Enter on it, sorts its table by that column; again, the other way.
for (const head of document.querySelectorAll("table.sortable th")) {
  head.tabIndex = 0;
  const sort = () => {
    const table = head.closest("table"), body = table.tBodies[0], column = head.cellIndex;
    const down = head.getAttribute("aria-sort") === "ascending";
    for (const other of table.querySelectorAll("th")) other.removeAttribute("aria-sort");
    head.setAttribute("aria-sort", down ? "descending" : "ascending");
    const valueOf = row => {
      const cell = row.cells[column];
      return cell.dataset.order === undefined ? cell.textContent : Number(cell.dataset.order);
    };
    const compare = (a, b) => {
      if (typeof a === "number" && typeof b === "number") return a - b;
      if (typeof a !== typeof b) return typeof a === "number" ? -1 : 1;
      return a.localeCompare(b);
    };
    const rows = [...body.rows].map(row => [valueOf(row), row]);
    rows.sort((a, b) => down ? compare(b[0], a[0]) : compare(a[0], b[0]));
    for (const [, row] of rows) body.append(row);
  };
  head.addEventListener("click", sort);
  head.addEventListener("keydown", event => { if (event.key === "Enter") sort(); });
}
