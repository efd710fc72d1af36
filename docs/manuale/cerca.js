// Search over all topics: those that hold every word, first those that hold them in their title.
"use strict";
const casella = document.getElementById("cerca");
const trovati = document.getElementById("trovati");

function piegato(testo) {
  return testo.normalize("NFKD").replace(/\p{M}/gu, "").toLowerCase();
}

function cerca() {
  const parole = piegato(casella.value).split(/\s+/).filter(Boolean);
  const tutte = (testo) => parole.every((p) => testo.includes(p));
  const esito = parole.length ? argomenti.filter((a) => tutte(a[2] + " " + a[3])) : [];
  esito.sort((a, b) => tutte(b[2]) - tutte(a[2]));
  trovati.hidden = parole.length === 0;
  trovati.replaceChildren(...esito.map((a) => {
    const voce = document.createElement("li");
    const via = document.createElement("a");
    via.href = a[1];
    via.textContent = a[0];
    voce.append(via);
    return voce;
  }));
  if (parole.length && !esito.length) trovati.textContent = "Nessun argomento";
}

casella.addEventListener("input", cerca);
casella.addEventListener("keydown", (e) => {
  const prima = trovati.querySelector("a");
  if (e.key === "Enter" && prima) location.href = prima.href;
  if (e.key === "Escape") { casella.value = ""; cerca(); }
});
document.addEventListener("keydown", (e) => {
  if (e.key === "k" && e.ctrlKey) { e.preventDefault(); casella.focus(); }
});
const qui = document.querySelector('.argomenti [aria-current="page"]');
const menu = document.querySelector("nav.menu");
if (qui) menu.scrollTop = qui.offsetTop - menu.clientHeight / 2; // the page itself stays at its top
