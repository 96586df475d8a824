// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the eye must read on the bank: for each keypad and each modifier mask the visible keys with
// their captions, "key=caption" with tabs between. Written down apart from the keypad tables.
#pragma once

#include <string_view>

namespace tallyforge {

struct ShownBank {
    int keypad;
    int mask;
    std::string_view keys;
};

// clang-format off
constexpr ShownBank kShownBanks[] = {
    {0, 0, "0=1/x\t1=x²\t2=√x\t3=π\t4=%\t5=y^x\t6=WC\t7=p±\t8=dD8\t9=Now\t10=px÷\t11=Rnd\t12=P:R\t13=ln+\t14=ln\t15=Log\t16=tax\t17=Σ\t18=Intr\t19=f:d\t20=e\t21=√\t22=√π\t23=N!"},
    {0, 1, "0=1/x\t1=x²\t2=√x\t3=1/π\t4=%d\t5=y^n\t6=H I\t7=p-\t8=chg d8 2\t9=Day\t10=p÷\t11=int\t12=R:P\t13=e^-1\t14=e^x\t15=10^x\t16=rate\t17=sum\t18=Amt\t19=thk\"\t20=1/e\t21=1/√2\t22=1/√π\t23=N! Intx"},
    {0, 2, "0=1/x\t1=x²\t2=√x\t3=sqrd\t4=±%\t5=2^x\t8=day + \t11=frac\t16=chg\t17=sm-\t19=w\"\t20=e²\t21=√3\t22=√2π\t23=Γ"},
    {0, 3, "0=1/x\t1=x²\t2=√x\t3=1/sq\t8=date 1 \t17=sum²\t20=1/e²\t21=1/√3\t22=1/√2π"},
    {0, 4, "0=1/x\t1=x²\t2=√x\t3=cube root\t5=2^n\t8= wks + \t11=flr\t17=(m)\t19=len'\t20=√e\t21=√10\t22=√π/2"},
    {0, 5, "0=1/x\t1=x²\t2=√x\t3=1/ C.R.\t11=Ceil\t17=sum xy\t19=len\"\t20=1/ √e\t21=1/ √10\t22=1/ √π/2"},
    {0, 6, "0=1/x\t1=x²\t2=√x\t3=2π\t17=std dev"},
    {0, 7, "0=1/x\t1=x²\t2=√x\t3= 1/ 2π\t17=re- set"},
    {1, 0, "0=1/x\t1=x²\t2=√x\t3=π\t4=λ\t5=Ri\t6=Fr\t7=Ω\t8=ω\t9=Cm\t10=f(x)\t11=Fo\t12=P:R\t13=Zp\t14=αB\t15=α\t16=Zn\t17=Pr\t18=Sr\t19=scl\t20=rho\t21=rT\t22=ΔT\t23=dB"},
    {1, 1, "0=1/x\t1=x²\t2=√x\t3=1/π\t4=F>m\t5=RT\t6=X\t7=P\t8=1/ω\t9=Vac\t11=Fo\t12=R:P\t13=xb\t14= f/ fc\t15= f/ fc\t16=F\t17=RL\t18=Rp\t19=R\t20=ρ\t21=α\t23=Z2"},
    {1, 2, "0=1/x\t1=x²\t2=√x\t3=sqrd\t4=m>s\t5=R1\t6=C\t7=I\t8=sqrd\t9=Vdc\t11=BW\t13=jyb\t14=n\t15=n\t17=C\t18=C\t19=C\t20=L\t21=R1\t22=HT"},
    {1, 3, "0=1/x\t1=x²\t2=√x\t3=1/ sqrd\t4=s>m\t5=R1\t8=1/ sqrd\t9=Vdc\t13=jyb\t14=n\t15=n\t20=L\t22=HT"},
    {1, 4, "0=1/x\t1=x²\t2=√x\t3=cube root\t4=F>s\t5=R2\t6=L\t7=E\t9=Idc\t11=FL\t13=xa\t15=ε\t17=L\t18=L\t19=Fc\t20=A\t21=R2\t22=dia"},
    {1, 5, "0=1/x\t1=x²\t2=√x\t3=1/ C.R.\t5=R2\t9=Idc\t13=xa\t15=ε\t19=Fc\t20=A\t22=dia"},
    {1, 6, "0=1/x\t1=x²\t2=√x\t3=2π\t4=s>F\t5=Z2\t6=F\t7=R\t9=F\t11=FU\t13=jya\t18=Rs\t19=Fo\t21=T1"},
    {1, 7, "0=1/x\t1=x²\t2=√x\t3= 1/ 2π\t9=F\t13=jya\t21=T2"},
    {2, 0, "0=1/x\t1=x²\t2=√x\t3=π\t4=h:m\t5=S3\t6=snh\t7=sec\t8=arc\t9=cot\t10=csc\t11=S1\t12=P:R\t13=Ø\t14=X\t15=H\t16=R:D\t17=tnh\t18=csh\t19=V·A\t20=tan\t21=cos\t22=sin\t23=S2"},
    {2, 1, "0=1/x\t1=x²\t2=√x\t3=1/π\t4=d:m\t5=A3\t6=arc snh\t7=arc sec\t9=arc cot\t10=arc csc\t11=A1\t12=R:P\t13=Φ\t14=Y\t16=D:R\t17=arc tnh\t18=arc coh\t19=V Fr\t20=arc tan\t21=arc cos\t22=arc sin\t23=A2"},
    {2, 2, "0=1/x\t1=x²\t2=√x\t3=sqrd\t4=m+\t6=sch\t16=D:G\t17=cth\t18=coh\t19=Vcn"},
    {2, 3, "0=1/x\t1=x²\t2=√x\t3=sqrd\t6= arc sch\t16=G:D\t17= arc cth\t18= arc coh\t19=Vcn"},
    {2, 4, "0=1/x\t1=x²\t2=√x\t3=cube root\t16=R:G\t19=V Sph"},
    {2, 5, "0=1/x\t1=x²\t2=√x\t3=1/ C.R.\t16=G:R\t19=A Sph"},
    {2, 6, "0=1/x\t1=x²\t2=√x\t3=2π\t19=A cir"},
    {2, 7, "0=1/x\t1=x²\t2=√x\t3= 1/ 2π\t19=per cir"},
    {4, 0, "0=1/x\t1=x²\t2=√x\t3=T°\t4=V\t5=ρ\t6=W\t7=tm\t8=Γ\t9=f.c.\t10=s|g\t11=P\t12=wt\t13=V³\t14=A²\t15=L¹\t16=K\t17=Mg\t18=E\t19=val\t20=Lt\t21=dB\t22=WF\t23=F"},
    {4, 1, "3=T°\t4=V\t5=ρ\t6=W\t7=tm\t8=Γ\t9=f.c.\t10=s|g\t11=P\t12=wt\t13=V³\t14=A²\t15=L¹\t16=K\t17=Mg\t18=E\t19=R code\t20=Lt\t21=dB\t22=WF\t23=F"},
    {4, 2, "5=SG\t19= C "},
    {4, 3, "19=C code"},
    {4, 4, "4=V\t5=ρ\t6=W\t7=tm\t8=Γ\t9=f.c.\t10=s|g\t11=P\t12=wt\t13=V³\t14=A²\t15=L¹\t16=K\t17=Mg\t18=E\t19= L \t20=Lt\t21=dB\t22=WF\t23=F"},
    {4, 5, "19=L code"},
    {4, 6, ""},
    {4, 7, ""},
    {8, 0, "0=1/x\t1=x²\t2=√x\t3=π\t4=Pc\t5=Ln²\t6=Lµ\t7=Bm\t8=Nø\t9=Øt\t10=Ø-B\t11=Q\t12=mtl\t13=Ls\t14=Ω\t15= S \nAWG\t16='C'\t17=Bµ\t18=µe\t19=dia\t20=v-s\t21=Hµ\t22=H\t23=PL"},
    {8, 1, "0=1/x\t1=x²\t2=√x\t3=1/π\t4=B(g)\t5=L\t6=L\t7=Bm\t8=Øt\t9=Øt\t10=Bm\t11=F\t12=OD\t13=L(µ)\t14=ohm /in\t15=awg: cmi\t16=D\t17=B(g)\t18=lo\t19=awg mag\t20=vs: Esat\t21=H\t22=H\t23=B(g)"},
    {8, 2, "0=1/x\t1=x²\t2=√x\t3=sqrd\t4=F\t5=n\t6=n\t7=n\t8=n\t9=n\t11=Rdc\t12=ID\t13=n\t14=ohm /m\t15=bare\t16=E\t17=n\t18=le\t19= awg Ins\t20=Esat :vs\t21=µ\t22=n\t23=F"},
    {8, 3, "0=1/x\t1=x²\t2=√x\t3=sqrd\t4=F\t8=n\t9=n\t11=Rdc\t12=ID\t13=n\t14=ohm /mm\t15=lbs /ft\t17=n\t18=le\t20=vs: Esat\t21=prm\t23=F"},
    {8, 4, "0=1/x\t1=x²\t2=√x\t3=cube root\t4=µ\t5=Lo\t6=Ae\t7=Ae\t8=V-S\t9=F\t11=L\t12=Ht\t13=r\t14=ohm /cm\t15=awg: dia\"\t16=F\t17=µ\t18=Ae\t19=scr #\t20=Esat :F\t22=I"},
    {8, 5, "0=1/x\t1=x²\t2=√x\t3=1/ C.R.\t4=µ\t8=V-S\t9=F\t11=L\t12=Ht\t13=r\t14=om/ 1000'\t15=dia\": awg\t17=µ\t18=Ae"},
    {8, 6, "0=1/x\t1=x²\t2=√x\t3=2π\t6=le\t7=F\t9=E\t11=Bm\t13=len\t14=ohm /lb\t15=awg: mm\t16=G\t18=µe\t20=Esat :F\t22=le"},
    {8, 7, "0=1/x\t1=x²\t2=√x\t3= 1/ 2π\t6=µ\t7=E\t9=E\t11=Bm\t13=len\t14= g/ ohm\t15=mm: awg\t18=µe"},
    {10, 0, "0=C-o\t1=B-h\t2=A-d\t3=rRB\t4=NOT\t5=XOR\t6=R:B\t7=sL\t8=sRB\t9=sLB\t10=sR\t11=AND\t12=bin\t13=oct\t14=hex\t15=dec\t16=E-#\t17=F\t18=ASR\t19=D-b\t20=rLB\t21=rR\t22=rL\t23=OR"},
    {10, 1, "0=o\t1=h\t2=d\t6=R:h\t16=#\t19=b"},
    {10, 2, "6=R:o"},
    {10, 3, ""},
    {10, 4, "6=R:d"},
    {10, 5, ""},
    {10, 6, ""},
    {10, 7, ""},
    {20, 0, "0=1/x\t1=X²\t2=√x\t3= W Aw\t4=W 1/2\t5=Stl Wire\t6=UNF\t7=MS\t8=BFC\t9=SS-T\t10=MS tap\t11=nails\t12=½hy Ø\t13=½hy cma\t14=½sg Ø\t15=½sg cma\t16=K\t17=AL Thk\t18=UNC\t19=F:D\t20=Sht Stl\t21=Bits\t22=ASP\t23=WS"},
    {20, 1, "0=1/x\t1=X²\t2=√x\t3= W Aw\t4=W 1/2\t5=Stl Wire\t6=UNF\t7=MS\t8=BFC\t9=SS-T\t10=MS tap\t11=nails\t12=½hy Ø\t13=½hy cma\t14=½sg Ø\t15=½sg cma\t16=K\t17=AL Thk\t18=UNC\t19=F:D\t20=Sht Stl\t21=Bits\t22=ASP\t23=WS"},
    {20, 2, "0=1/x\t1=X²\t2=√x\t3= W Aw\t4=W 1/2\t5=Stl Wire\t6=UNF\t7=MS\t8=BFC\t9=SS-T\t10=MS tap\t11=nails\t12=½hy Ø\t13=½hy cma\t14=½sg Ø\t15=½sg cma\t16=K\t17=AL Thk\t18=UNC\t19=F:D\t20=Sht Stl\t21=Bits\t22=ASP\t23=WS"},
    {20, 3, "0=1/x\t1=X²\t2=√x\t3= W Aw\t4=W 1/2\t5=Stl Wire\t6=UNF\t7=MS\t8=BFC\t9=SS-T\t10=MS tap\t11=nails\t12=½hy Ø\t13=½hy cma\t14=½sg Ø\t15=½sg cma\t16=K\t17=AL Thk\t18=UNC\t19=F:D\t20=Sht Stl\t21=Bits\t22=ASP\t23=WS"},
    {20, 4, "0=1/x\t1=X²\t2=√x\t3= W Aw\t4=W 1/2\t5=Stl Wire\t6=UNF\t7=MS\t8=BFC\t9=SS-T\t10=MS tap\t11=nails\t12=½hy Ø\t13=½hy cma\t14=½sg Ø\t15=½sg cma\t16=K\t17=AL Thk\t18=UNC\t19=F:D\t20=Sht Stl\t21=Bits\t22=ASP\t23=WS"},
    {20, 5, "0=1/x\t1=X²\t2=√x\t3= W Aw\t4=W 1/2\t5=Stl Wire\t6=UNF\t7=MS\t8=BFC\t9=SS-T\t10=MS tap\t11=nails\t12=½hy Ø\t13=½hy cma\t14=½sg Ø\t15=½sg cma\t16=K\t17=AL Thk\t18=UNC\t19=F:D\t20=Sht Stl\t21=Bits\t22=ASP\t23=WS"},
    {20, 6, "0=1/x\t1=X²\t2=√x\t3= W Aw\t4=W 1/2\t5=Stl Wire\t6=UNF\t7=MS\t8=BFC\t9=SS-T\t10=MS tap\t11=nails\t12=½hy Ø\t13=½hy cma\t14=½sg Ø\t15=½sg cma\t16=K\t17=AL Thk\t18=UNC\t19=F:D\t20=Sht Stl\t21=Bits\t22=ASP\t23=WS"},
    {20, 7, "0=1/x\t1=X²\t2=√x\t3= W Aw\t4=W 1/2\t5=Stl Wire\t6=UNF\t7=MS\t8=BFC\t9=SS-T\t10=MS tap\t11=nails\t12=½hy Ø\t13=½hy cma\t14=½sg Ø\t15=½sg cma\t16=K\t17=AL Thk\t18=UNC\t19=F:D\t20=Sht Stl\t21=Bits\t22=ASP\t23=WS"},
};
// clang-format on

}  // namespace tallyforge
