#include "picture/report_style.h"

namespace qelpro {

std::string_view report_style() {
  return R"(
*{box-sizing:border-box}
body{margin:0 auto;max-width:1360px;padding:1.5rem clamp(.75rem,2.5vw,2rem) 4rem;background:var(--paper);color:var(--ink);
font:15px/1.45 system-ui,"Segoe UI",Roboto,"Helvetica Neue",Arial,sans-serif;overflow-wrap:break-word}
h1,h2,h3,h4,p,figure{margin:0}
h1{font-size:1.75rem;line-height:1.2;margin-bottom:1rem}
h2{font-size:1.3rem;margin:2.5rem 0 1rem;padding-bottom:.3rem;border-bottom:2px solid var(--grid)}
h3{font-size:1.05rem;margin:1.5rem 0 .25rem}
h4{font-size:.95rem;margin:1.25rem 0 .5rem}
.chapter>h2+.part>h3,.inlet>h3+.part>h4{margin-top:0}
.inlet{margin-bottom:2rem}
.inlet>h3{font-size:1.1rem;margin-bottom:.75rem}
.parts{columns:2 34rem;column-gap:2.5rem}
.parts.one,.parts.wide{columns:auto}
.parts .part{break-inside:avoid}
.halves{display:grid;grid-template-columns:repeat(auto-fit,minmax(min(100%,34rem),1fr));gap:0 2.5rem;align-items:start}
.part{min-width:0}
.parts table,.halves table{width:100%}
.parts h3{margin-top:0}
.parts .part{padding-bottom:1rem}
.kind,.subject,small,.meaning{color:var(--soft)}
.kind{font-size:.85rem;letter-spacing:.04em;text-transform:uppercase}
.subject{font-size:.875rem;margin-bottom:.6rem}
code{font:.85em ui-monospace,SFMono-Regular,Consolas,"Liberation Mono",monospace;color:var(--soft);font-weight:400}
nav{display:flex;flex-wrap:wrap;gap:.25rem 1rem;margin-top:1.25rem;font-size:.9rem}
a{color:var(--k0)}
.box{position:relative;max-width:100%;overflow-x:auto;margin-bottom:1rem}
.box:focus-visible{outline:2px solid var(--k0);outline-offset:2px}
table{border-collapse:collapse;font-size:.875rem;font-variant-numeric:tabular-nums;}
th,td{text-align:left;vertical-align:top;padding:.28rem .9rem .28rem .5rem;border-bottom:1px solid var(--grid);max-width:28rem}
th bdi,td bdi{display:inline-block;width:max-content;max-width:min(22rem,60vw);overflow-wrap:break-word}
.facts td{max-width:none}
.facts td bdi{max-width:min(30rem,50vw)}
thead th{color:var(--soft);font-weight:600;border-bottom:1.5px solid var(--rule);white-space:normal}
thead th small{display:block;font-weight:400;max-width:14rem}
tbody th{font-weight:500}
td.value bdi{white-space:pre-wrap;tab-size:3}
td.meaning{min-width:15rem}
td.none{color:var(--soft)}
tr.differs>*{background:var(--mark)}
.mark{font-weight:700}
.hidden{position:absolute;width:1px;height:1px;overflow:hidden;clip-path:inset(50%);white-space:nowrap}
.part .box{margin-bottom:.5rem}
.facts th{color:var(--soft);font-weight:500}
.error{color:var(--bad)}.warning{color:var(--warn)}.note{color:var(--note)}
.charts{display:grid;grid-template-columns:repeat(auto-fill,minmax(min(100%,24rem),1fr));gap:1rem;margin-bottom:1.25rem;align-items:start}
figure{min-width:0;padding:.75rem .9rem;border:1px solid var(--grid);border-radius:6px;background:var(--paper)}
figure.wide{max-width:56rem;margin-bottom:1rem}
figure .subject{margin:.25rem 0 0}
figcaption{font-weight:600;font-size:.925rem;margin-bottom:.4rem}
svg.picture{display:block;width:100%;height:auto;max-width:34rem}
.wide svg.picture{max-width:none}
details{margin-top:.4rem;font-size:.825rem}
summary{color:var(--soft);cursor:pointer}
details .box{max-height:22rem;overflow:auto;margin:.4rem 0 0}
table.points{min-width:8rem}
@media (max-width:40rem){body{font-size:14px}h1{font-size:1.4rem}figure{padding:.6rem}th,td{padding-right:.6rem}}
@media print{
@page{margin:14mm}
body{max-width:none;padding:0;font-size:9pt}
nav{display:none}
h2,h3,h4,figcaption,.subject{break-after:avoid}
h2{margin:1.2rem 0 .6rem}
h3{margin-top:.8rem}
.subject{margin-bottom:.3rem}
figure,tr{break-inside:avoid}
thead{display:table-header-group}
.parts{columns:auto}
.charts,.halves{display:block;orphans:1;widows:1}
.charts figure{display:inline-block;vertical-align:top;width:49%;margin:0 .5% .6rem 0}
.box,details .box{overflow:visible;max-height:none}
table{font-size:8pt;line-height:1.25}
th,td{max-width:none;padding:.1rem .6rem .1rem .3rem}
.parts .part{padding-bottom:.4rem}
td.meaning{min-width:0}
.parts .part{break-inside:auto}
tr.differs>*{print-color-adjust:exact;-webkit-print-color-adjust:exact}
details.few::details-content{content-visibility:visible;display:block;block-size:auto}
details.many{display:none}
}
)";
}

}  // namespace qelpro
