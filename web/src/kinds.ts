// The kinds by name, with what a page wants to know of each beyond the field itself: the names of the boxes for
// those who do not see them, and what a phone's keyboard and the browser's memory are to offer.

export interface Kind {
  readonly number: number;
  // In the order in which the boxes stand; a kind with one box goes by the label alone.
  readonly boxes?: readonly string[];
  readonly inputMode?: string;
  readonly autocomplete?: string;
  // Whether a browser's spelling marks help.
  readonly prose?: boolean;
}

const digits = { inputMode: 'numeric' };
const date = { ...digits, boxes: ['dia', 'mês', 'ano'] };
const amount = { inputMode: 'decimal' };

export const kinds: Readonly<Record<string, Kind>> = {
  gbNenhuma: { number: 100, prose: true },
  gbLetra: { number: 110 },
  gbAlfanumerico: { number: 120 },
  gbData: { number: 130, ...date },
  gbDataAtual: { number: 131, ...date },
  gbMesAno: { number: 140, ...digits, boxes: ['mês', 'ano'] },
  gbHora: { number: 150, ...digits, boxes: ['hora', 'minuto'] },
  gbInteiro: { number: 160, ...digits },
  gbReal: { number: 170, ...amount },
  gbMoeda: { number: 180, ...amount },
  gbCEP: { number: 190, ...digits, boxes: ['CEP, cinco dígitos', 'CEP, três dígitos'], autocomplete: 'postal-code' },
  gbTelefone: { number: 200, inputMode: 'tel', autocomplete: 'tel' },
  gbDefUsr: { number: 210 },
  gbVersao: { number: 220, ...amount },
  gbListaNoCombo: { number: 230 },
  gbCPF: { number: 240, ...digits },
  gbCNPJ: { number: 250, ...digits },
  gbCidadeEstado: { number: 260, boxes: ['cidade', 'estado'], autocomplete: 'address-level2' },
  gbEstado: { number: 261, autocomplete: 'address-level1' },
  gbCidadeEstadoPopulado: { number: 262, autocomplete: 'address-level2' },
  gbCartaoCredito: { number: 270, ...digits, autocomplete: 'cc-number' },
  gbIntervaloNumerico: { number: 280, ...digits, boxes: ['de', 'até'] },
  gbEnderecoEmail: { number: 290, inputMode: 'email', autocomplete: 'email' },
};

const plain: Kind = { number: 0 };
const byNumber = new Map(Object.entries(kinds).map(([name, kind]) => [kind.number, { ...kind, name }]));
const short = (name: string) => name.toLowerCase().replace(/^gb/, '');
const byName = new Map(Object.entries(kinds).map(([name, kind]) => [short(name), kind.number]));

export function kindOf(mask: number): Kind {
  return byNumber.get(mask) ?? plain;
}

// The name of a kind, or the number of one that has none.
export function maskName(mask: number): string {
  return byNumber.get(mask)?.name ?? String(mask);
}

// A name in any case, with or without "gb", or a number; undefined for anything else.
export function maskNumber(mask: string): number | undefined {
  const name = mask.trim();
  return byName.get(short(name)) ?? (/^-?\d{1,9}$/.test(name) ? Number(name) : undefined);
}
